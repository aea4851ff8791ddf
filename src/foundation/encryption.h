#pragma once
#include <QString>

// The reversible scrambling that keeps user passwords out of plain sight: a shift of (Windows-1252) character
// codes whose key is 127 less the greatest code and travels at the end of the text.
int EncryptionKey(const QString& text);
QString EncryptText(const QString& text);  // one character longer; empty when a shifted code reaches 255
QString DecryptText(const QString& text);
