#include "reports/frame/report_fonts.h"

#include <QFontMetrics>
#include <QTextLayout>
#include <QTextLine>
#include <QTextOption>
#include <algorithm>

const char* familyOf(Typeface face) {
    switch (face) {
        case Typeface::Verdana:
            return "DejaVu Sans";
        case Typeface::Tahoma:
            return "DejaVu Sans Condensed";
        case Typeface::TimesNewRoman:
            return "Liberation Serif";
        case Typeface::Arial:
            break;
    }
    return "Liberation Sans";
}

// Letters that stand apart, be it unseen, are not joined to one sign: text that is copied from a PDF, or
// looked for in it, is made of plain letters.
static constexpr qreal unseen = 1.0 / 64;

QFont fontInTwips(const TextStyle& style) {
    QFont font(familyOf(style.face));
    font.setPixelSize(style.points * 20);
    font.setBold(style.isBold);
    font.setHintingPreference(QFont::PreferNoHinting);
    font.setLetterSpacing(QFont::AbsoluteSpacing, unseen);
    return font;
}

int lineHeight(const TextStyle& style) { return QFontMetrics(fontInTwips(style)).lineSpacing(); }

int leastPercent(const TextStyle& style) { return std::min(100, leastPoints * 100 / style.points); }

static void breakParagraph(const QFont& font, const QString& paragraph, int width, QStringList& lines) {
    QTextLayout layout(paragraph, font);
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
    layout.setTextOption(option);
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(width);
        lines += paragraph.mid(line.textStart(), line.textLength()).trimmed();
    }
    layout.endLayout();
}

QStringList brokenLines(const TextStyle& style, const QString& text, int width) {
    const QFont font = fontInTwips(style);
    QStringList lines;
    for (QString paragraph : text.split('\n')) {
        paragraph.remove('\r');
        if (paragraph.isEmpty())
            lines += QString();
        else
            breakParagraph(font, paragraph, width, lines);
    }
    return lines;
}
