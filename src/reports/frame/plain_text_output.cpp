#include "reports/frame/page_fonts.h"
#include "reports/frame/page_lines.h"
#include "reports/frame/report_output.h"

#include <algorithm>
#include <climits>

namespace {
// A gap of more than this between lines is an empty line.
constexpr int emptyLine = 420;

// A text cut or padded to this many columns from the one where its control stands.
void write(QString& line, const PageItem& item, QString text, int width, Qt::Alignment alignment) {
    const int from = columnAt(item.place.left());
    text.truncate(width);
    if (alignment & Qt::AlignRight) text = text.rightJustified(columnsOf(item));
    if (alignment & Qt::AlignHCenter) text = QString((width - text.size()) / 2, ' ') + text;
    if (line.size() < from + text.size()) line = line.leftJustified(from + text.size());
    for (qsizetype i = 0; i < text.size(); ++i)
        if (text[i] != ' ') line[from + i] = text[i];
}

class TextOfLines {
  public:
    explicit TextOfLines(const ReportPages& pages) : pages_(pages), fonts_(pages) {}

    QString written(const PageLine& line) const {
        QString text;
        for (const PageItem* item : line.items)
            if (line.isRule())
                write(text, *item, QString(columnsOf(*item), '-'), columnsOf(*item), Qt::AlignLeft);
            else
                write(text, *item, item->text, columnsFor(line, *item), alignment(*item));
        while (text.endsWith(' ')) text.chop(1);
        return text + '\n';
    }

  private:
    Qt::Alignment alignment(const PageItem& item) const { return pages_.styles[item.style].alignment; }

    // Letters that stand whole on paper may have no room in a fixed pitch: they run on to the next text.
    int columnsFor(const PageLine& line, const PageItem& item) const {
        const int columns = columnsOf(item);
        const bool runsOn =
            item.text.size() > columns && alignment(item) == Qt::AlignLeft && fonts_.fits(item);
        return runsOn ? std::max(columns, columnsToTheNext(line, item)) : columns;
    }

    // The columns from this item to the next text on its line, less a blank.
    int columnsToTheNext(const PageLine& line, const PageItem& item) const {
        int next = INT_MAX;
        for (const PageItem* other : line.items)
            if (other->place.left() > item.place.left()) next = std::min(next, firstColumn(*other));
        return next == INT_MAX ? next : next - columnAt(item.place.left()) - 1;
    }

    int firstColumn(const PageItem& item) const {
        const int blanks = std::max(0, columnsOf(item) - static_cast<int>(item.text.size()));
        return columnAt(item.place.left()) + (alignment(item) & Qt::AlignRight ? blanks : 0);
    }

    const ReportPages& pages_;
    PageFonts fonts_;
};

QString textOfPage(const TextOfLines& lines, const ReportPage& page) {
    QString text;
    int above = -1;
    for (const PageLine& line : linesOf(page)) {
        if (above >= 0 && line.top - above > emptyLine) text += '\n';
        text += lines.written(line);
        above = line.top;
    }
    return text;
}
}  // namespace

QString reportOutput::plainText(const ReportPages& pages) {
    QStringList texts;
    const TextOfLines lines(pages);
    for (const ReportPage& page : pages.pages) texts += textOfPage(lines, page);
    return texts.join('\f');
}
