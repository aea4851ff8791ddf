#pragma once
#include <QColor>
#include <QPalette>

// How well a text can be read on its background: the quotient of their luminances, 1 (not at all) to 21. At
// 4.5 people with weak eyes still read it without help.
inline constexpr double readableContrast = 4.5;
double contrastOf(const QColor& text, const QColor& background);

// The palette of a desktop, with the colours moved as little as it takes for every text to be read on what it
// stands on: fields, windows, buttons, selected rows, links, hints, and what is disabled.
QPalette readablePalette(QPalette palette);
