#include "reports/frame/page_fonts.h"
#include "reports/frame/page_lines.h"
#include "reports/frame/page_progress.h"
#include "reports/frame/report_output.h"

#include <algorithm>
#include <climits>

namespace {
// A gap of more than this between lines is an empty line.
constexpr int emptyLine = 420;

// A text at its place in a line.
struct Piece {
    const PageItem* item;
    QString text;  // as it is written
    int from;      // its first column
    int end() const { return from + static_cast<int>(text.size()); }
    bool isCut() const { return text.size() < item->text.size(); }
};

int endColumn(const PageItem& item) { return columnAt(item.place.left()) + columnsOf(item); }

// One line of texts: each cut at its control, then given the free room that it needs. A figure gets it even
// where none is free.
class LineOfTexts {
  public:
    LineOfTexts(const ReportPages& pages, const PageFonts& fonts, const PageLine& line)
        : pages_(pages), fonts_(fonts) {
        for (const PageItem* item : line.items) pieces_.push_back(cutAtControl(*item));
        std::ranges::stable_sort(pieces_, {}, [](const Piece& piece) { return piece.item->place.left(); });
        growFigures();
        for (Piece& piece : pieces_)
            if (piece.isCut() && alignment(*piece.item) == Qt::AlignLeft) runOn(piece);
        for (std::size_t i = 0; i < pieces_.size(); ++i)
            if (pieces_[i].isCut() && pieces_[i].item->isFigure) makeRoom(i);
    }

    const std::vector<Piece>& pieces() const { return pieces_; }

  private:
    Qt::Alignment alignment(const PageItem& item) const { return pages_.styles[item.style].alignment; }

    Piece cutAtControl(const PageItem& item) const {
        const int columns = columnsOf(item);
        Piece piece{&item, item.text.left(columns), columnAt(item.place.left())};
        const int blanks = columns - static_cast<int>(piece.text.size());
        if (alignment(item) & Qt::AlignRight) piece.from += blanks;
        if (alignment(item) & Qt::AlignHCenter) piece.from += blanks / 2;
        return piece;
    }

    // A figure at the right edge of its control takes the free room at its left, up to a blank.
    void growFigures() {
        int free = 0;  // the first column that is
        for (Piece& piece : pieces_) {
            const int from = endColumn(*piece.item) - static_cast<int>(piece.item->text.size());
            if (piece.isCut() && piece.item->isFigure && alignment(*piece.item) & Qt::AlignRight &&
                from >= free)
                piece = {piece.item, piece.item->text, from};
            free = std::max(free, piece.end() + 1);
        }
    }

    // Letters that stand whole on paper may have no room in a fixed pitch: they run on to the next text, up
    // to a blank.
    void runOn(Piece& piece) const {
        if (!piece.item->isFigure && !fonts_.of(*piece.item).fits(*piece.item)) return;
        int next = INT_MAX;
        for (const Piece& other : pieces_)
            if (other.item->place.left() > piece.item->place.left()) next = std::min(next, other.from);
        piece.text = piece.item->text.left(std::max<qsizetype>(piece.text.size(), next - 1 - piece.from));
    }

    // A figure that has no room takes it: what is left free at its left, and then it moves what follows.
    void makeRoom(std::size_t figure) {
        Piece& piece = pieces_[figure];
        piece.text = piece.item->text;
        if (alignment(*piece.item) & Qt::AlignRight) {
            int free = 0;
            for (std::size_t i = 0; i < figure; ++i) free = std::max(free, pieces_[i].end() + 1);
            piece.from = std::min(piece.from, free);
        }
        int next = INT_MAX;
        for (std::size_t i = figure + 1; i < pieces_.size(); ++i) next = std::min(next, pieces_[i].from);
        for (std::size_t i = figure + 1; i < pieces_.size(); ++i)
            pieces_[i].from += std::max(0, piece.end() + 1 - next);
    }

    const ReportPages& pages_;
    const PageFonts& fonts_;
    std::vector<Piece> pieces_;
};

// Over what stands there already; blanks leave it.
void write(QString& line, const QString& text, int from) {
    if (line.size() < from + text.size()) line = line.leftJustified(from + text.size());
    for (qsizetype i = 0; i < text.size(); ++i)
        if (text[i] != ' ') line[from + i] = text[i];
}

QString written(const ReportPages& pages, const PageFonts& fonts, const PageLine& line) {
    QString text;
    if (line.isRule()) {
        for (const PageItem* item : line.items)
            write(text, QString(columnsOf(*item), '-'), columnAt(item->place.left()));
    } else {
        const LineOfTexts texts(pages, fonts, line);
        for (const Piece& piece : texts.pieces()) write(text, piece.text, piece.from);
    }
    while (text.endsWith(' ')) text.chop(1);
    return text + '\n';
}

QString textOfPage(const ReportPages& pages, const PageFonts& fonts, const ReportPage& page) {
    QString text;
    int above = -1;
    for (const PageLine& line : linesOf(page)) {
        if (above >= 0 && line.top - above > emptyLine) text += '\n';
        text += written(pages, fonts, line);
        above = line.top;
    }
    return text;
}
}  // namespace

QString reportOutput::plainText(const ReportPages& pages, Progress& progress) {
    QStringList texts;
    const PageFonts fonts(pages);
    PageProgress saving(progress, "Saving", pages.pages.size());
    for (const ReportPage& page : pages.pages) {
        saving.setPage(static_cast<std::size_t>(texts.size()) + 1);
        texts += textOfPage(pages, fonts, page);
    }
    return texts.join('\f');
}
