#include "platform/progress_scope.h"
#include "reports/frame/report_output.h"
#include "reports/frame/sheet_table.h"
#include "reports/frame/sheet_value.h"

#include <xlsxwriter.h>
#include <QDir>
#include <QFile>
#include <QHash>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <memory>
#include <optional>
#include <stdexcept>

namespace {
constexpr qsizetype longestText = 32767;  // that a cell holds
constexpr int twipsPerCharacter = 105;    // of the usual letters of a sheet
constexpr qint64 spareRoom = 1 << 20;
constexpr int letterPaper = 1, legalPaper = 5;

constexpr const char* tooLong = "The report has more lines than a spreadsheet holds.";

void require(lxw_error error) {
    if (error == LXW_ERROR_WORKSHEET_INDEX_OUT_OF_RANGE) throw std::runtime_error(tooLong);
    if (error != LXW_NO_ERROR)
        throw std::runtime_error(std::string("The spreadsheet could not be made: ") + lxw_strerror(error));
}

// The first of the pieces that a text is written in, at most as long as a cell, broken between its lines.
QString pieceOf(const QString& text) {
    if (text.size() <= longestText) return text;
    const qsizetype lineEnd = text.lastIndexOf('\n', longestText - 1);
    return text.left(lineEnd > 0 ? lineEnd + 1 : longestText);
}

lxw_datetime datetimeOf(const QDateTime& moment) {
    const QDate day = moment.date();
    const QTime time = moment.time();
    return {day.year(), day.month(), day.day(), time.hour(), time.minute(), double(time.second())};
}

// What a sheet is called: no longer than 31 letters, without those that references are written with.
QByteArray sheetName(const QString& title) {
    QString name;
    for (const QChar letter : title)
        if (!QStringView(u"[]:*?/\\'").contains(letter)) name += letter;
    while (name.endsWith('.')) name.chop(1);
    return name.left(31).trimmed().toUtf8();
}

// How a cell looks.
struct Look {
    QString mask = {};
    Qt::Alignment alignment = Qt::AlignLeft;
    bool isBold = false;
    bool wraps = false;
    QString key() const {
        return mask + '\n' + QString::number(alignment.toInt()) + (isBold ? 'b' : ' ') + (wraps ? 'w' : ' ');
    }
};

class Workbook {
  public:
    explicit Workbook(const ReportPages& pages) {
        const QByteArray name = QFile::encodeName(file()), folder = QFile::encodeName(folder_.path());
        QByteArray temporary = folder;
        lxw_workbook_options options{LXW_TRUE, temporary.data(), LXW_TRUE};
        book_.reset(workbook_new_opt(name.constData(), &options));
        if (!book_) require(LXW_ERROR_MEMORY_MALLOC_FAILED);
        sheet_ = workbook_add_worksheet(book_.get(), sheetName(pages.caption).constData());
        if (!sheet_) require(LXW_ERROR_MEMORY_MALLOC_FAILED);
        setUpPaper(pages.setup);
    }

    void write(const SheetTable& table, Progress& progress) {
        writeHeads(table.columns);
        const ProgressScope saving(progress, "Saving the Spreadsheet...",
                                   static_cast<qint64>(table.rows.size()));
        for (const SheetRow& row : table.rows) {
            writeRow(row);
            progress.setValue(row_);
        }
        setWidths(table.columns);
    }

    QByteArray content() {
        requireRoom();
        require(workbook_close(book_.release()));
        QFile written(file());
        if (!written.open(QIODevice::ReadOnly)) require(LXW_ERROR_READING_TMPFILE);
        return written.readAll();
    }

  private:
    struct Free {
        void operator()(lxw_workbook* book) const { lxw_workbook_free(book); }
    };

    QString file() const { return folder_.filePath("report.xlsx"); }

    // The library does not notice that a disk is full: it would give a part of the sheet as the whole. It
    // writes the rows once more on closing, and packs them; so there must be room for as much.
    void requireRoom() {
        std::FILE* rows = sheet_->optimize_tmpfile;
        const bool isWritten = std::fflush(rows) == 0 && !std::ferror(rows);
        if (!isWritten || !hasRoomFor(2 * std::ftell(rows) + spareRoom))
            throw std::runtime_error("There is no room to make the spreadsheet in " +
                                     QDir::tempPath().toStdString() + ". Make room there.");
    }

    bool hasRoomFor(qint64 bytes) const {
        const QByteArray some(spareRoom, ' ');
        QFile room(folder_.filePath("room"));
        bool hasRoom = room.open(QIODevice::WriteOnly | QIODevice::Unbuffered);
        for (; hasRoom && bytes > 0; bytes -= spareRoom) hasRoom = room.write(some) == some.size();
        room.remove();
        return hasRoom;
    }

    void setUpPaper(const PageSetup& setup) {
        const auto [shorter, longer] = std::minmax(setup.paperWidth, setup.paperHeight);
        worksheet_set_paper(sheet_, longer > 15840 ? legalPaper : letterPaper);
        if (setup.paperWidth > setup.paperHeight) worksheet_set_landscape(sheet_);
        worksheet_fit_to_pages(sheet_, 1, 0);
        worksheet_repeat_rows(sheet_, 0, 0);
        worksheet_freeze_panes(sheet_, 1, 0);
    }

    void writeHeads(const std::vector<SheetColumn>& columns) {
        for (std::size_t i = 0; i < columns.size(); ++i)
            writeText(static_cast<int>(i), columns[i].head,
                      {.alignment = columns[i].control->style.alignment, .isBold = true});
        ++row_;
    }

    void writeRow(const SheetRow& row) {
        lxw_row_col_options options{LXW_FALSE, static_cast<uint8_t>(std::min(row.level, 7)), LXW_FALSE};
        require(worksheet_set_row_opt(sheet_, row_, LXW_DEF_ROW_HEIGHT, nullptr, &options));
        for (const SheetCell& cell : row.cells) writeCell(cell, row);
        ++row_;
        if (const auto rest = restOf(row)) writeRow(*rest);
    }

    // What a cell does not hold goes on in the next row.
    static std::optional<SheetRow> restOf(const SheetRow& row) {
        SheetRow rest{row.level, row.isLine, row.isTotal, {}};
        for (const SheetCell& cell : row.cells)
            if (const QString more = cell.text.mid(pieceOf(cell.text).size()); !more.isEmpty())
                rest.cells.push_back({cell.column, more, cell.control});
        return rest.cells.empty() ? std::nullopt : std::optional(rest);
    }

    void writeCell(const SheetCell& cell, const SheetRow& row) {
        const SheetValue value = sheetValue(cell.text, *cell.control);
        const bool isBold = row.isTotal || (!row.isLine && cell.control->style.isBold);
        const Look look{value.mask, row.isLine ? cell.control->style.alignment : Qt::AlignLeft, isBold};
        if (const auto* number = std::get_if<double>(&value.value))
            writeNumber(cell, *number, look);
        else if (const auto* moment = std::get_if<QDateTime>(&value.value))
            writeMoment(cell, *moment, look);
        else
            writeText(cell.column, pieceOf(cell.text), look);
    }

    void writeNumber(const SheetCell& cell, double number, Look look) {
        look.alignment = Qt::AlignRight;
        require(worksheet_write_number(sheet_, row_, columnOf(cell.column), number, formatOf(look)));
        keepWidth(cell.column, cell.text);
    }

    void writeMoment(const SheetCell& cell, const QDateTime& moment, const Look& look) {
        lxw_datetime value = datetimeOf(moment);
        require(worksheet_write_datetime(sheet_, row_, columnOf(cell.column), &value, formatOf(look)));
        keepWidth(cell.column, cell.text);
    }

    void writeText(int column, QString text, Look look) {
        text.remove('\r');
        while (text.endsWith('\n')) text.chop(1);
        look.wraps = text.contains('\n');
        require(worksheet_write_string(sheet_, row_, columnOf(column), text.toUtf8().constData(),
                                       formatOf(look)));
    }

    static lxw_col_t columnOf(int column) { return static_cast<lxw_col_t>(column); }

    lxw_format* formatOf(const Look& look) {
        lxw_format*& format = formats_[look.key()];
        if (format) return format;
        format = workbook_add_format(book_.get());
        if (!look.mask.isEmpty()) format_set_num_format(format, look.mask.toUtf8().constData());
        if (look.isBold) format_set_bold(format);
        if (look.wraps) format_set_text_wrap(format);
        // A sheet would stand a date at the right, against the text beside it.
        if (look.alignment & Qt::AlignLeft) format_set_align(format, LXW_ALIGN_LEFT);
        if (look.alignment & Qt::AlignRight) format_set_align(format, LXW_ALIGN_RIGHT);
        if (look.alignment & Qt::AlignHCenter) format_set_align(format, LXW_ALIGN_CENTER);
        return format;
    }

    // A column is as wide as on paper, and wider where a figure would not be seen.
    void keepWidth(int column, const QString& figure) {
        qsizetype& widest = widest_[column];
        widest = std::max(widest, figure.size() + 2);
    }

    void setWidths(const std::vector<SheetColumn>& columns) {
        for (std::size_t i = 0; i < columns.size(); ++i)
            keepWidth(static_cast<int>(i),
                      QString(std::max<qsizetype>(columns[i].control->width / twipsPerCharacter,
                                                  columns[i].head.size()),
                              ' '));
        for (const auto& [column, width] : widest_.asKeyValueRange())
            require(worksheet_set_column(sheet_, columnOf(column), columnOf(column),
                                         static_cast<double>(width), nullptr));
    }

    const QTemporaryDir folder_;
    std::unique_ptr<lxw_workbook, Free> book_;
    lxw_worksheet* sheet_ = nullptr;
    lxw_row_t row_ = 0;
    QHash<QString, lxw_format*> formats_;
    QHash<int, qsizetype> widest_;
};
}  // namespace

QByteArray reportOutput::spreadsheet(const ReportPages& pages, Progress& progress) {
    if (pages.bands > PageItem::mostBands) throw std::runtime_error(tooLong);
    Workbook book(pages);
    book.write(sheetTable(pages), progress);
    return book.content();
}
