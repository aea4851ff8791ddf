#include "reports/labels/prtBarCode.h"

#include "platform/masks.h"
#include "platform/parsing.h"
#include "platform/print/bar_code.h"
#include "platform/store/connection.h"
#include "platform/store/transaction.h"
#include "reports/frame/text_rows.h"

#include <QHash>

namespace {
constexpr int labelsOfBand = 7;
constexpr int pitch = 1620, labelWidth = 1530;
constexpr TextStyle small{Typeface::Tahoma, 7, false, Qt::AlignLeft};
constexpr const char* texts[] = {"Code", "Locator", "Description", "Price"};

QList<ReportControl> controlsOf(int number) {
    const QString k = QString::number(number);
    const int x = 90 + pitch * (number - 1);
    return {bars("lblBarCode" + k, x, 0, labelWidth, 500),
            label("lblNoBarCode" + k, "", x, 0, labelWidth, 500, small),
            whole(label("lblCode" + k, "", x, 500, 900, 180, small)),
            label("lblLocator" + k, "", x + 900, 500, 630, 180, small),
            label("lblDescription" + k, "", x, 680, labelWidth, 180, small),
            whole(label("lblPrice" + k, "", x, 860, labelWidth, 180, small))};
}

ReportSection band() {
    QList<ReportControl> controls;
    for (int number = 1; number <= labelsOfBand; ++number) controls += controlsOf(number);
    return section(SectionKind::Detail, 1180, controls);
}

// What stands in place of bars that cannot be.
QString wordsFor(barCode::Lack lack) {
    switch (lack) {
        case barCode::Lack::Characters:
            return "No bars: not all characters are in Code 39";
        case barCode::Lack::Room:
            return "No bars: the code is too long";
        default:
            return {};
    }
}

void fillLabel(const ReportSource& row, SectionFields& fields, const QString& k) {
    for (const char* name : texts) fields.setText("lbl" + (name + k), row.text(name + k));
    const QString code = row.text("Code" + k);
    const auto lack = code.isEmpty() ? barCode::Lack::Nothing : barCode::lackOf(code, labelWidth);
    fields.setText("lblNoBarCode" + k, wordsFor(lack));
    fields.setText("lblBarCode" + k, lack == barCode::Lack::Nothing ? code : QString());
}

void fillBand(const ReportSource& row, SectionFields& fields) {
    for (int number = 1; number <= labelsOfBand; ++number) fillLabel(row, fields, QString::number(number));
}

// The present labels stay until the next ones are made.
void storeLabels(Connection& store, const QStringList& itemCodes) {
    store.run("DELETE FROM tblTemp");
    for (const QString& code : itemCodes) store.run({"INSERT INTO tblTemp (Server) VALUES (?)", {code}});
}

using Item = QHash<QString, QString>;  // its texts by name

// The price, and since when the item is there.
QString priceText(const Recordset& item) {
    return trim(formatNumber(item.currency("SellingPrice"), mask::amount) + " " +
                formatDate(item.date("DateAquired"), "mm-yyyy"));
}

// By folded code, which is how the store compares them.
QHash<QString, Item> labelledItems(Connection& store) {
    QHash<QString, Item> items;
    for (Recordset rows = store.execute(
             "SELECT * FROM tblItemMaster WHERE ItemCode IN (SELECT Server FROM tblTemp) ORDER BY ItemCode");
         !rows.eof(); rows.moveNext())
        items.insert(rows.trimmed("ItemCode").toCaseFolded(), {{"Locator", rows.trimmed("Locator")},
                                                               {"Description", rows.trimmed("Description")},
                                                               {"Price", priceText(rows)}});
    return items;
}

// A row is a band of labels; its columns are "Code1", "Locator1" and so on, up to those of the seventh.
std::unique_ptr<ReportSource> bandsOf(const QStringList& codes, const QHash<QString, Item>& items) {
    return std::make_unique<TextRows>(
        (codes.size() + labelsOfBand - 1) / labelsOfBand,
        [codes, items](qsizetype row, const QString& column) {
            const QString code = codes.value(row * labelsOfBand + column.last(1).toInt() - 1);
            const QString name = column.chopped(1);
            return name == "Code" ? code : items.value(code.toCaseFolded()).value(name);
        });
}
}  // namespace

const ReportLayout& prtBarCode() {
    static const ReportLayout layout{
        "prtBarCode", "Generate Bar Code...", printersPaper(250, 11415), {band()}};
    return layout;
}

std::optional<ReportJobParts> barCodeReport(Connection& store, const QStringList& itemCodes) {
    if (itemCodes.isEmpty()) return {};
    Transaction unit(store);
    storeLabels(store, itemCodes);
    const auto items = labelledItems(store);
    unit.commit();
    return ReportJobParts{prtBarCode(), bandsOf(itemCodes, items), {{on(SectionKind::Detail), fillBand}}};
}
