#include "demo/day_boxes.h"

#include "platform/ui/boxes.h"

static QString told(const Box& box) { return QString("\"%1\": %2").arg(box.title, box.text); }

static QString wordFor(BoxAnswer answer) {
    switch (answer) {
        case BoxAnswer::Yes:
            return "Yes";
        case BoxAnswer::No:
            return "No";
        case BoxAnswer::Cancel:
            return "Cancel";
        case BoxAnswer::Ok:
            break;
    }
    return "OK";
}

DayBoxes::DayBoxes(std::function<void(const QString& line)> say) : say_(std::move(say)) {
    setBoxAnswerer([this](const Box& box) { return answer(box); });
}

DayBoxes::~DayBoxes() { setBoxAnswerer({}); }

BoxAnswer DayBoxes::answer(const Box& box) {
    const auto meant = [&](const Expected& expected) {
        return (expected.title.isEmpty() || box.title == expected.title) &&
               box.text.startsWith(expected.text);
    };
    while (!expected_.isEmpty() && !meant(expected_.first()) && expected_.first().optional)
        expected_.removeFirst();
    if (expected_.isEmpty() || !meant(expected_.first())) {
        if (surprise_.isEmpty()) surprise_ = "this box was not expected: " + told(box);
        return escapeAnswer(box);
    }
    const BoxAnswer answer = expected_.takeFirst().answer;
    say_(QString("    box %1 - %2").arg(told(box), wordFor(answer)));
    return answer;
}

QString DayBoxes::settle() {
    QString fault = std::exchange(surprise_, {});
    for (const Expected& expected : std::exchange(expected_, {}))
        if (fault.isEmpty() && !expected.optional)
            fault = QString("this box did not come: \"%1\": %2").arg(expected.title, expected.text);
    return fault;
}
