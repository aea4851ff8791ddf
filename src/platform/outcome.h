#pragma once
#include "platform/box.h"

#include <QHash>
#include <variant>

// What a module without a window answers to a request of a screen.

// Refused: show the box (one without a text: nothing), then put the focus on the control of this name (empty:
// leave it).
struct Fault {
    Box box;
    QString focus;
};

// Refused with the box "Error!"; the focus goes to the control of this name, or stays.
inline Fault errorFault(const QString& text, const QString& focus = {}) {
    return {exclamation("Error!", text), focus};
}

// Undecided: show the box and call again with the answer under this key.
struct Question {
    QString key;
    Box box;
};
using Answers = QHash<QString, BoxAnswer>;

// Done: show the collected boxes, in order.
struct Done {
    Boxes boxes;
};

using Outcome = std::variant<Done, Fault, Question>;

inline bool isDone(const Outcome& outcome) { return std::holds_alternative<Done>(outcome); }
