#pragma once
#include "reports/frame/report_layout.h"

#include <QFont>

// The font of a style in a space of twips: its pixel is a twentieth of a point. Verdana is printed with
// DejaVu Sans, Tahoma with DejaVu Sans Condensed, Arial with Liberation Sans.
QFont fontInTwips(const TextStyle& style);
// The height of one line of the style, in twips.
int lineHeight(const TextStyle& style);
// The text broken into lines of at most this width, in twips: at its line breaks, between words, and within a
// word that is wider than the line.
QStringList brokenLines(const TextStyle& style, const QString& text, int width);
