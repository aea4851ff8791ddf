#include "reports/frame/report_output.h"

#include <algorithm>

namespace {
// Fifteen characters to the inch: an amount of the narrowest column keeps all its digits.
constexpr int characterWidth = 96;
// Items whose tops lie this close together stand on one line of text.
constexpr int sameLine = 110;
// A gap of more than this between lines is an empty line.
constexpr int emptyLine = 420;

// A text cut or padded to the columns of its control, and put where the control stands.
void write(QString& line, const PageItem& item, Qt::Alignment alignment) {
    const int from = item.place.left() / characterWidth;
    const int width = std::max(1, item.place.width() / characterWidth);
    QString text = item.text.left(width);
    if (alignment & Qt::AlignRight) text = text.rightJustified(width);
    if (alignment & Qt::AlignHCenter) text = QString((width - text.size()) / 2, ' ') + text;
    if (line.size() < from + text.size()) line = line.leftJustified(from + text.size());
    for (qsizetype i = 0; i < text.size(); ++i)
        if (text[i] != ' ') line[from + i] = text[i];
}

QString ruled(const PageItem& item) { return QString(std::max(1, item.place.width() / characterWidth), '-'); }

class TextPage {
  public:
    TextPage(const ReportPages& pages, const ReportPage& page) : pages_(pages) {
        for (const PageItem& item : page.items)
            if (item.kind != ControlKind::Image && item.place.width() >= characterWidth)
                items_.push_back(&item);
        std::stable_sort(items_.begin(), items_.end(), [](const PageItem* a, const PageItem* b) {
            return a->place.top() < b->place.top();
        });
    }

    QString text() {
        for (const PageItem* item : items_) {
            if (!isOnLine(*item)) startLine(item->place.top());
            add(*item);
        }
        flush();
        return text_;
    }

  private:
    bool isOnLine(const PageItem& item) const { return hasLine_ && item.place.top() - top_ <= sameLine; }

    void startLine(int top) {
        flush();
        if (hasLine_ && top - top_ > emptyLine) text_ += '\n';
        hasLine_ = true;
        top_ = top;
    }

    void add(const PageItem& item) {
        if (item.kind == ControlKind::Line) {
            PageItem rule = item;
            rule.text = ruled(item);
            write(line_, rule, Qt::AlignLeft);
        } else {
            write(line_, item, pages_.styles[item.style].alignment);
        }
    }

    void flush() {
        if (!hasLine_) return;
        while (line_.endsWith(' ')) line_.chop(1);
        text_ += line_ + '\n';
        line_.clear();
    }

    const ReportPages& pages_;
    std::vector<const PageItem*> items_;
    QString text_, line_;
    int top_ = 0;
    bool hasLine_ = false;
};
}  // namespace

QString reportOutput::plainText(const ReportPages& pages) {
    QStringList texts;
    for (const ReportPage& page : pages.pages) texts += TextPage(pages, page).text();
    return texts.join('\f');
}
