#include "platform/print/bar_code.h"
#include "reports/frame/page_fonts.h"
#include "reports/frame/page_lines.h"
#include "reports/frame/page_picture.h"
#include "reports/frame/page_progress.h"
#include "reports/frame/report_fonts.h"

#include <QBuffer>
#include <QImage>
#include <QPainter>
#include <algorithm>
#include <cstring>
#include <iterator>
#include <utility>

// Each line of a page is a paragraph of exactly its height, with a tab stop for each of its columns: it stays
// in its place, and a word processor edits it as text.
namespace {
using reportOutput::Rendering;

constexpr int leastHeight = 40;
constexpr int blankWidth = 60;
// What stands right behind a right edge has a stop of its own, or it would push that column to the left.
constexpr int leastGap = 20;

QByteArray control(const char* word, int number) {
    return QByteArray("\\") + word + QByteArray::number(number);
}

QByteArray escaped(QChar character) {
    const char16_t unit = character.unicode();
    if (unit < ' ' || unit == 0x7f) return " ";
    if (unit > 0x7f) return control("u", static_cast<qint16>(unit)) + '?';
    const char ascii = static_cast<char>(unit);
    return std::strchr("\\{}", ascii) ? QByteArray("\\") + ascii : QByteArray(1, ascii);
}

QByteArray escaped(const QString& text) {
    QByteArray all;
    for (const QChar character : text) all += escaped(character);
    return all;
}

// A text as its control shows it: cut where it is cut as plain text, and what is still too wide drawn
// narrower, so that it cannot push the columns behind it.
FittedText fittedWhole(const PageItem& item, const StyleFont& font) {
    FittedText fit = font.fitted(item);
    const int room = item.place.width();
    while (fit.width > room && fit.text.size() > columnsOf(item)) {
        fit.text.chop(1);
        fit.width = font.width(fit.text) * fit.percent / 100;
    }
    if (fit.width > room) fit.percent = std::max(1, fit.percent * room / fit.width);
    fit.width = std::min(fit.width, room);
    return fit;
}

// One paragraph: its tab stops and its text, put together from the left.
class Line {
  public:
    Line(const ReportPages& pages, const PageFonts& fonts) : pages_(pages), fonts_(fonts) {}

    void addTexts(const PageLine& line) {
        std::vector<Column> columns;
        for (const PageItem* item : line.items) columns.push_back(columnOf(*item));
        std::stable_sort(columns.begin(), columns.end(),
                         [](const Column& a, const Column& b) { return a.start < b.start; });
        for (const Column& column : columns) addText(column);
    }

    void addRules(const PageLine& line) {
        text_ += "{\\fs8 ";
        for (const PageItem* item : line.items) {
            tabTo("\\tx", fromMargin(item->place.left()));
            tabTo("\\tlul\\tx", fromMargin(item->place.left() + item->place.width()));
        }
        text_ += '}';
    }

    QByteArray stops() const { return stops_; }
    QByteArray text() const { return text_; }

  private:
    struct Column {
        const PageItem* item;
        FittedText fit;
        int start;  // where its text begins
    };

    const TextStyle& style(const PageItem& item) const { return pages_.styles[item.style]; }
    int fromMargin(int left) const { return std::max(0, left - pages_.setup.left); }

    Column columnOf(const PageItem& item) const {
        const StyleFont& font = fonts_.of(item);
        FittedText fit = fittedWhole(item, font);
        const int start = fromMargin(font.leftOf(item, fit));
        return {&item, std::move(fit), start};
    }

    // A text that stands over the one before it follows it after a blank.
    void addText(const Column& column) {
        if (column.start < end_) {
            text_ += ' ';
            end_ += blankWidth + column.fit.width;
        } else {
            tabTo(column);
            end_ = column.start + column.fit.width;
        }
        text_ += '{' + look(column) + ' ' + escaped(column.fit.text) + '}';
    }

    void tabTo(const Column& column) {
        const QRect& place = column.item->place;
        const Qt::Alignment alignment = style(*column.item).alignment;
        if (alignment & Qt::AlignRight)
            tabTo("\\tqr\\tx", fromMargin(place.left() + place.width()));
        else if (alignment & Qt::AlignHCenter)
            tabTo("\\tqc\\tx", fromMargin(place.left() + place.width() / 2));
        else
            tabTo("\\tx", column.start);
    }

    void tabTo(const char* stop, int place) {
        if (place <= 0) return;  // the margin
        stop_ = std::max(place, stop_ + leastGap);
        stops_ += stop + QByteArray::number(stop_);
        text_ += "\\tab ";
    }

    QByteArray look(const Column& column) const {
        const TextStyle& font = style(*column.item);
        QByteArray look = control("f", static_cast<int>(font.face)) + control("fs", font.points * 2);
        if (font.isBold) look += "\\b";
        if (column.fit.percent < 100) look += control("charscalex", column.fit.percent);
        return look;
    }

    const ReportPages& pages_;
    const PageFonts& fonts_;
    QByteArray stops_, text_;
    int stop_ = 0, end_ = 0;
};

QByteArray pictureData(const QImage& picture) {
    QByteArray png;
    QBuffer buffer(&png);
    buffer.open(QIODevice::WriteOnly);
    picture.save(&buffer, "PNG");
    return png.toHex();
}

// Bars as dots, 600 to the inch.
QImage barsOf(const PageItem& item) {
    constexpr double dotsPerTwip = 600 / 1440.0;
    QImage picture(item.place.size() * dotsPerTwip, QImage::Format_Grayscale8);
    picture.fill(Qt::white);
    QPainter painter(&picture);
    painter.scale(dotsPerTwip, dotsPerTwip);
    barCode::paint(painter, QRect(QPoint(), item.place.size()), item.text);
    return picture;
}

bool isPicture(const PageItem& item) {
    return item.kind == ControlKind::Image || item.kind == ControlKind::BarCode;
}

// Behind the text, at its place on the paper.
QByteArray floating(const PageItem& item) {
    const QImage picture =
        item.kind == ControlKind::BarCode ? barsOf(item) : printedPicture(item.text, item.place.size());
    if (picture.isNull()) return {};
    const QRect place(item.place.topLeft(), printedSize(picture, item.place.size()));
    return "{\\shp{\\*\\shpinst" + control("shpleft", place.left()) + control("shptop", place.top()) +
           control("shpright", place.left() + place.width()) +
           control("shpbottom", place.top() + place.height()) +
           "\\shpbxpage\\shpbypage\\shpwr3\\shpfblwtxt1{\\sp{\\sn shapeType}{\\sv 75}}{\\sp{\\sn pib}{\\sv "
           "{\\pict\\pngblip" +
           control("picw", picture.width()) + control("pich", picture.height()) +
           control("picwgoal", place.width()) + control("pichgoal", place.height()) + '\n' +
           pictureData(picture) + "}}}}}";
}

// The fonts that the texts are measured with, by Typeface; where there are none, those that they stand for,
// which are no wider: a column never runs into the next one.
QByteArray fontTable(Rendering rendering) {
    static const char* const named[] = {"Verdana", "Tahoma", "Arial"};
    QByteArray table = "{\\fonttbl";
    for (int face = 0; face < 3; ++face) {
        table += '{' + control("f", face);
        if (rendering == Rendering::Full)
            table += QByteArray("\\fswiss{\\*\\falt ") + named[face] + '}' + familyOf(Typeface(face));
        else
            table += QByteArray("\\fmodern\\fprq1{\\*\\falt Courier New}") + fixedPitchFamily;
        table += ";}";
    }
    return table + '}';
}

int tallest(const PageLine& line) {
    int height = leastHeight;
    for (const PageItem* item : line.items) height = std::max(height, item->place.height());
    return line.isRule() ? leastHeight : height;
}

class Document {
  public:
    Document(const ReportPages& pages, Rendering rendering)
        : pages_(pages), rendering_(rendering), fonts_(pages, rendering) {}

    QByteArray rtf(Progress& progress) {
        addHead();
        PageProgress saving(progress, "Saving", pages_.pages.size());
        for (std::size_t page = 0; page < pages_.pages.size(); ++page) {
            saving.setPage(page + 1);
            addPage(pages_.pages[page], page > 0);
        }
        return rtf_ + "}\n";
    }

  private:
    // Pictures that stand at one place on every page go into the header, which a file holds once.
    void addHeader() {
        if (rendering_ != Rendering::Full || pages_.pages.size() < 2) return;
        ReportPage header;
        std::ranges::copy_if(pages_.pages.front().items, std::back_inserter(header.items),
                             [this](const PageItem& item) { return isOnEveryPage(item); });
        const QByteArray pictures = picturesOf(header);
        onEveryPage_ = std::move(header.items);
        if (!pictures.isEmpty()) rtf_ += "{\\header\\pard\\plain\\sl-20\\slmult0 " + pictures + "\\par}\n";
    }

    bool isOnEveryPage(const PageItem& item) const {
        return isPicture(item) && std::ranges::all_of(pages_.pages, [&item](const ReportPage& page) {
                   return holds(page.items, item);
               });
    }

    static bool holds(const std::vector<PageItem>& items, const PageItem& picture) {
        return std::ranges::any_of(items, [&picture](const PageItem& item) {
            return item.kind == picture.kind && item.place == picture.place && item.text == picture.text;
        });
    }

    void addHead() {
        const PageSetup& setup = pages_.setup;
        const int right = std::min(setup.right, setup.paperWidth - setup.left - setup.printWidth);
        rtf_ += "{\\rtf1\\ansi\\ansicpg1252\\uc1\\deff0" + fontTable(rendering_) + "\n{\\info{\\title " +
                escaped(pages_.caption) + "}}\n" + control("paperw", setup.paperWidth) +
                control("paperh", setup.paperHeight) + control("margl", setup.left) +
                control("margr", std::max(0, right)) + control("margt", setup.top) +
                control("margb", setup.bottom);
        if (setup.paperWidth > setup.paperHeight) rtf_ += "\\landscape";
        rtf_ += "\\headery0\n";
        addHeader();
    }

    void addPage(const ReportPage& page, bool breaksBefore) {
        const std::vector<PageLine> lines = linesOf(page);
        bottom_ = pages_.setup.top;
        // The break and the pictures stand in the first paragraph; a page without text has an empty one.
        QByteArray first = rendering_ == Rendering::Full ? picturesOf(page) : QByteArray();
        const char* pageBreak = breaksBefore ? "\\pagebb" : "";
        if (lines.empty()) addParagraph(pageBreak, first);
        for (std::size_t i = 0; i < lines.size(); ++i) {
            const int below = i + 1 < lines.size() ? lines[i + 1].top : pages_.setup.paperHeight;
            addLine(lines[i], below, i == 0 ? pageBreak : "", std::exchange(first, {}));
        }
    }

    // No higher than up to the next line, so that a page never runs over.
    void addLine(const PageLine& line, int below, const QByteArray& pageBreak, const QByteArray& before) {
        const int space = std::max(0, line.top - bottom_);
        const int top = bottom_ + space;
        const int height = std::max(leastHeight, std::min(tallest(line), below - top));
        bottom_ = top + height;
        Line columns(pages_, fonts_);
        line.isRule() ? columns.addRules(line) : columns.addTexts(line);
        addParagraph(
            pageBreak + control("sb", space) + control("sl", -height) + "\\slmult0" + columns.stops(),
            before + columns.text());
    }

    void addParagraph(const QByteArray& properties, const QByteArray& text) {
        if (hasParagraph_) rtf_ += "\\par\n";
        hasParagraph_ = true;
        rtf_ += "\\pard\\plain\\nowidctlpar" + properties + ' ' + text;
    }

    QByteArray picturesOf(const ReportPage& page) const {
        QByteArray pictures;
        for (const PageItem& item : page.items)
            if (isPicture(item) && !holds(onEveryPage_, item)) pictures += floating(item);
        return pictures;
    }

    const ReportPages& pages_;
    Rendering rendering_;
    const PageFonts fonts_;
    std::vector<PageItem> onEveryPage_;  // pictures of the header
    QByteArray rtf_;
    int bottom_ = 0;
    bool hasParagraph_ = false;
};
}  // namespace

QByteArray reportOutput::rtf(const ReportPages& pages, Rendering rendering, Progress& progress) {
    return Document(pages, rendering).rtf(progress);
}
