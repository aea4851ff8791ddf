#include "support/box_script.h"

#include <gtest/gtest.h>

static BoxScript* innermost = nullptr;

static QString described(const QString& title, const QString& text) {
    return "\"" + title + "\": \"" + text.left(300) + "\"";
}

void failOnUnexpectedBoxes() {
    setBoxAnswerer([](const Box& box) {
        ADD_FAILURE() << "unexpected box " << qPrintable(described(box.title, box.text));
        return escapeAnswer(box);
    });
}

BoxScript::BoxScript() : outer_(innermost) {
    innermost = this;
    setBoxAnswerer([this](const Box& box) { return answer(box); });
}

BoxScript::~BoxScript() {
    verify();
    innermost = outer_;
    if (outer_)
        setBoxAnswerer([outer = outer_](const Box& box) { return outer->answer(box); });
    else
        failOnUnexpectedBoxes();
}

BoxScript& BoxScript::expect(const QString& title, const QString& text, std::optional<BoxAnswer> answer) {
    expected_ += {title, text, answer, std::exchange(meanwhile_, nullptr)};
    return *this;
}

BoxScript& BoxScript::meanwhile(std::function<void()> act) {
    meanwhile_ = std::move(act);
    return *this;
}

BoxScript& BoxScript::record(std::function<BoxAnswer(const Box&)> answer) {
    recorder_ = std::move(answer);
    return *this;
}

bool BoxScript::Expected::matches(const Box& box) const {
    return (title.isEmpty() || title == box.title) && (text.isEmpty() || text == box.text);
}

BoxAnswer BoxScript::answer(const Box& box) {
    shown_ += box;
    EXPECT_TRUE(!box.text.contains("Successfully") || box.icon == BoxIcon::Information)
        << qPrintable(described(box.title, box.text));
    if (expected_.isEmpty() && recorder_) return recorder_(box);
    if (expected_.isEmpty() || !expected_.first().matches(box)) return unexpected(box);
    const Expected now = expected_.takeFirst();
    if (now.meanwhile) now.meanwhile();
    const BoxAnswer answer = now.answer.value_or(defaultAnswer(box));
    EXPECT_TRUE(boxChoices(box).contains(answer))
        << "no such button in " << qPrintable(described(box.title, box.text));
    return answer;
}

BoxAnswer BoxScript::unexpected(const Box& box) {
    const QString instead =
        expected_.isEmpty() ? "none" : described(expected_.first().title, expected_.first().text);
    ADD_FAILURE() << "unexpected box " << qPrintable(described(box.title, box.text)) << "\n  expected "
                  << qPrintable(instead);
    return escapeAnswer(box);
}

void BoxScript::verify() {
    for (const Expected& missing : std::exchange(expected_, {}))
        ADD_FAILURE() << "box never shown: " << qPrintable(described(missing.title, missing.text));
}
