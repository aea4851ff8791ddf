#pragma once
#include "platform/outcome.h"

#include <stdexcept>

// A step of the demo firm that must be done: a refusal, or a question, is a std::runtime_error with its text.
inline void require(const Outcome& outcome, const QString& what) {
    if (const Fault* fault = std::get_if<Fault>(&outcome))
        throw std::runtime_error((what + ": " + fault->box.text).toStdString());
    if (const Question* question = std::get_if<Question>(&outcome))
        throw std::runtime_error((what + ": " + question->box.text).toStdString());
}
