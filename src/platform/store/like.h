#pragma once
#include <QByteArrayView>

struct sqlite3;

// Whether a text fits a pattern of % and _, letters of every script folded (Ñ and ñ are one, N is another).
// escape: the character that takes a following % or _ by the letter; 0 for none.
bool matchesLike(QByteArrayView pattern, QByteArrayView text, char32_t escape = 0);

// Makes the engine's LIKE that of matchesLike.
void overrideLike(sqlite3* engine);
