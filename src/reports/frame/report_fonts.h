#pragma once
#include "reports/frame/report_layout.h"

#include <QFont>

// The family that a typeface is printed with: Verdana with DejaVu Sans, Tahoma with DejaVu Sans Condensed,
// Arial with Liberation Sans, Times New Roman with Liberation Serif.
const char* familyOf(Typeface face);
// What a dot matrix printer prints with.
inline constexpr const char* fixedPitchFamily = "DejaVu Sans Mono";
// The font of a style in a space of twips: its pixel is a twentieth of a point.
QFont fontInTwips(const TextStyle& style);
// The height of one line of the style, in twips.
int lineHeight(const TextStyle& style);
// The least letters that can be read, in points: none are set narrower than those.
inline constexpr int leastPoints = 5;
// The least breadth that letters of the style are set in, of 100.
int leastPercent(const TextStyle& style);
// The text broken into lines of at most this width, in twips: at its line breaks, between words, and within a
// word that is wider than the line.
QStringList brokenLines(const TextStyle& style, const QString& text, int width);
