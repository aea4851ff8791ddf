#pragma once
#include <QString>

// Compares a text with the copy that is kept under golden/. A difference fails with the lines that differ,
// and a missing copy fails; with the environment's ZEVRIN_WRITE_GOLDEN the copy is written anew instead, to
// be read before it is kept.
void compareWithGolden(const QString& name, const QString& text);
