#include "platform/ui/settled.h"

#include "platform/ui/boxes.h"

#include <QWidget>

bool settled(const Outcome& outcome, QWidget* screen) {
    if (const auto* fault = std::get_if<Fault>(&outcome)) {
        showFault(*fault, screen);
        return false;
    }
    showBoxes(std::get<Done>(outcome).boxes);
    return true;
}

Outcome askUntilSettled(const std::function<Outcome(const Answers&)>& request) {
    Answers answers;
    for (;;) {
        Outcome outcome = request(answers);
        const auto* asked = std::get_if<Question>(&outcome);
        if (!asked) return outcome;
        answers.insert(asked->key, showBox(asked->box));
    }
}
