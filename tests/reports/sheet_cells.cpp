#include "reports/sheet_cells.h"

#include "platform/masks.h"

#include <gtest/gtest.h>
#include <QHash>
#include <QProcess>
#include <QTemporaryFile>
#include <QXmlStreamReader>

namespace {
QByteArray partOf(const QByteArray& xlsx, const QString& part) {
    QTemporaryFile file;
    EXPECT_TRUE(file.open() && file.write(xlsx) == xlsx.size() && file.flush());
    QProcess reader;
    reader.start("unzip", {"-p", file.fileName(), part});
    EXPECT_TRUE(reader.waitForFinished()) << "unzip is needed";
    EXPECT_EQ(reader.exitCode(), 0) << reader.readAllStandardError().constData();
    return reader.readAllStandardOutput();
}

// The masks of the cells' styles, by their number; those that every spreadsheet knows have no text.
QStringList masksOf(const QByteArray& styles) {
    QHash<QString, QString> masks{{"1", "0"}, {"2", "0.00"}, {"3", "#,##0"}, {"4", "#,##0.00"}};
    QStringList all;
    bool isOfCells = false;
    for (QXmlStreamReader xml(styles); !xml.atEnd(); xml.readNext()) {
        const auto is = [&xml](const char* name) { return xml.name() == QLatin1String(name); };
        const auto value = [&xml](const char* name) { return xml.attributes().value(name).toString(); };
        if (is("cellXfs")) isOfCells = xml.isStartElement();
        if (!xml.isStartElement()) continue;
        if (is("numFmt")) masks[value("numFmtId")] = value("formatCode");
        if (isOfCells && is("xf")) all += masks.value(value("numFmtId"));
    }
    return all;
}

QString shown(double number, const QString& mask) {
    const QByteArray text = mask.toUtf8();
    if (!mask.contains('y')) return formatNumber(Currency::fromDouble(number), text.constData());
    const auto day = static_cast<qint64>(number);
    const QDateTime midnight(QDate(1899, 12, 30).addDays(day), QTime(0, 0), Qt::UTC);
    return formatDateTime(midnight.addSecs(qRound((number - static_cast<double>(day)) * 86400)),
                          text.constData());
}

int columnOf(const QString& reference) {
    int column = 0;
    for (const QChar letter : reference)
        if (letter.isLetter()) column = column * 26 + letter.unicode() - 'A' + 1;
    return column - 1;
}
}  // namespace

SheetFile readSheet(const QByteArray& xlsx) {
    SheetFile sheet;
    const QStringList masks = masksOf(partOf(xlsx, "xl/styles.xml"));
    QString mask, type;
    for (QXmlStreamReader xml(partOf(xlsx, "xl/worksheets/sheet1.xml")); !xml.atEnd(); xml.readNext()) {
        if (!xml.isStartElement()) continue;
        const auto value = [&xml](const char* name) { return xml.attributes().value(name); };
        if (xml.name() == u"pane") sheet.frozenLines = value("ySplit").toInt();
        if (xml.name() == u"row") sheet.lines.push_back({value("outlineLevel").toInt(), {}});
        if (xml.name() == u"c") {
            QStringList& cells = sheet.lines.back().cells;
            while (cells.size() <= columnOf(value("r").toString())) cells += QString();
            mask = masks.value(value("s").toInt());
        }
        if (xml.name() == u"t") sheet.lines.back().cells.last() = xml.readElementText();
        if (xml.name() == u"v") {
            const QString figure = shown(xml.readElementText().toDouble(), mask);
            sheet.lines.back().cells.last() = figure;
            sheet.figures += figure;
        }
    }
    return sheet;
}

QString sheetText(const SheetFile& sheet) {
    QString text;
    for (const SheetLine& line : sheet.lines)
        text += QString("%1| %2\n").arg(QString::number(line.level), line.cells.join(" | "));
    return text;
}
