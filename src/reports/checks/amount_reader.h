#pragma once
#include "platform/currency.h"

#include <QString>
#include <optional>

// Reads a check's amount in words back into a number: "***One Thousand Two Pesos & 50/100 Only***" is
// 1,002.50, with the stars around it or without. None for what is no such amount. It has words of its own, so
// that it finds what the writer of the words gets wrong.
std::optional<Currency> AmountOfWords(const QString& text);
