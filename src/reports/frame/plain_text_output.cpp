#include "reports/frame/page_lines.h"
#include "reports/frame/report_output.h"

namespace {
// A gap of more than this between lines is an empty line.
constexpr int emptyLine = 420;

// A text cut or padded to the columns of its control, and put where the control stands.
void write(QString& line, const PageItem& item, QString text, Qt::Alignment alignment) {
    const int from = item.place.left() / characterWidth;
    const int width = columnsOf(item);
    text.truncate(width);
    if (alignment & Qt::AlignRight) text = text.rightJustified(width);
    if (alignment & Qt::AlignHCenter) text = QString((width - text.size()) / 2, ' ') + text;
    if (line.size() < from + text.size()) line = line.leftJustified(from + text.size());
    for (qsizetype i = 0; i < text.size(); ++i)
        if (text[i] != ' ') line[from + i] = text[i];
}

QString written(const PageLine& line, const ReportPages& pages) {
    QString text;
    for (const PageItem* item : line.items)
        if (line.isRule())
            write(text, *item, QString(columnsOf(*item), '-'), Qt::AlignLeft);
        else
            write(text, *item, item->text, pages.styles[item->style].alignment);
    while (text.endsWith(' ')) text.chop(1);
    return text + '\n';
}

QString textOfPage(const ReportPages& pages, const ReportPage& page) {
    QString text;
    int above = -1;
    for (const PageLine& line : linesOf(page)) {
        if (above >= 0 && line.top - above > emptyLine) text += '\n';
        text += written(line, pages);
        above = line.top;
    }
    return text;
}
}  // namespace

QString reportOutput::plainText(const ReportPages& pages) {
    QStringList texts;
    for (const ReportPage& page : pages.pages) texts += textOfPage(pages, page);
    return texts.join('\f');
}
