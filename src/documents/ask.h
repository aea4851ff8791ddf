#pragma once
#include "platform/ui/boxes.h"

#include <functional>

// Asks a module's questions one by one and calls it again with the answers, until it is Done or a Fault.
inline Outcome askUntilSettled(const std::function<Outcome(const Answers&)>& request) {
    Answers answers;
    for (;;) {
        const Outcome outcome = request(answers);
        const auto* asked = std::get_if<Question>(&outcome);
        if (!asked) return outcome;
        answers.insert(asked->key, showBox(asked->box));
    }
}
