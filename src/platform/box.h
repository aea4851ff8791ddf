#pragma once
#include <QList>
#include <QString>

// A message box as a value: what modules without a window answer, and screens show (ui/boxes.h).
enum class BoxIcon { None, Critical, Question, Exclamation, Information };
enum class BoxButtons { Ok, YesNo, YesNoCancel };
enum class BoxAnswer { Ok, Yes, No, Cancel };

struct Box {
    QString title;
    QString text;
    BoxIcon icon = BoxIcon::Exclamation;
    BoxButtons buttons = BoxButtons::Ok;
    // The button that Enter presses. Ok stands for the first button.
    BoxAnswer defaultButton = BoxAnswer::Ok;

    bool operator==(const Box&) const = default;
};

// Boxes that come up inside a store transaction are collected and shown in order at its end.
using Boxes = QList<Box>;

inline Box exclamation(const QString& title, const QString& text) { return {title, text}; }
inline Box information(const QString& title, const QString& text) {
    return {title, text, BoxIcon::Information};
}
inline Box critical(const QString& title, const QString& text) { return {title, text, BoxIcon::Critical}; }
inline Box question(const QString& title, const QString& text, BoxAnswer defaultButton = BoxAnswer::Yes) {
    return {title, text, BoxIcon::Question, BoxButtons::YesNo, defaultButton};
}
