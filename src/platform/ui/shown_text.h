#pragma once
#include <QString>

// A text as one line of a list shows it: line breaks as blanks, the end of an endless one left away. The data
// behind it stays whole.
inline QString shownText(QString text) {
    constexpr int longest = 500;
    if (text.size() > longest) text = text.left(longest) + u'…';
    for (QChar& c : text)
        if (c == u'\n' || c == u'\r' || c == u'\t' || c == QChar::LineSeparator ||
            c == QChar::ParagraphSeparator)
            c = u' ';
    return text;
}
