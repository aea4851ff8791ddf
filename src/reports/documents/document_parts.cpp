#include "reports/documents/document_parts.h"

#include "foundation/shared_routines.h"
#include "platform/masks.h"
#include "platform/parsing.h"
#include "reports/frame/list_report.h"

namespace {
constexpr int edge = 90;
constexpr int lineOfText = 225;
constexpr TextStyle tight{Typeface::Tahoma, 8, false, Qt::AlignLeft};
constexpr TextStyle tightNumber{Typeface::Tahoma, 8, false, Qt::AlignRight};
constexpr TextStyle tightCentred{Typeface::Tahoma, 8, false, Qt::AlignHCenter};
constexpr TextStyle centredHead{Typeface::Tahoma, 8, true, Qt::AlignHCenter};
constexpr TextStyle head{Typeface::Tahoma, 8, true, Qt::AlignLeft};
constexpr TextStyle numberHead{Typeface::Tahoma, 8, true, Qt::AlignRight};

int rightEdge(const ColumnPlace& column) { return column.left + column.width; }

QList<ReportControl> partyBlock(const DocumentPaper& paper) {
    return {label("lblParty", paper.party, 90, 1350, 900, lineOfText),
            growing(field("txtContactName", "ContactName", 990, 1350, 6210, lineOfText, bold())),
            growing(field("txtAddress", "Address", 990, 1620, 6210, 540))};
}

QList<ReportControl> numberBlock(const DocumentPaper& paper) {
    const int left = paper.numberLeft, value = 8820;
    const int width = value - left - edge;
    return {label("lblTitle", paper.title, left, 990, 3060, 300, bold(12)),
            label("lblNumber", paper.number, left, 1350, width, lineOfText),
            whole(growing(field("txtNumber", paper.numberColumn, value, 1350, 1890, lineOfText, bold()))),
            label("lblDate", paper.date, left, 1620, width, lineOfText),
            field("txtDate", paper.dateColumn, value, 1620, 1890, lineOfText, {}, mask::date),
            label("lblTerms", "Terms :", left, 1890, width, lineOfText),
            whole(growing(field("txtTerms", "Terms", value, 1890, 1890, lineOfText)))};
}

ReportControl columnHead(const char* name, const QString& text, const ColumnPlace& place,
                         const TextStyle& style) {
    return label(name, text, place.left, 2340, place.width, lineOfText, style);
}

QList<ReportControl> columnHeads(const DocumentPaper& paper) {
    const DocumentColumns& at = paper.columns;
    return {columnHead("lblOrdered", "Ordered", at.ordered, numberHead),
            columnHead("lblMoved", paper.moved, at.moved, numberHead),
            columnHead("lblUnit", "Unit", at.unit, centredHead),
            columnHead("lblItemCode", "Item Code", at.item, head),
            columnHead("lblDescription", "Description", at.description, head),
            columnHead("lblGross", "Gross", at.gross, numberHead),
            columnHead("lblDiscount", "Discount", {at.discount.left, at.discount.width + 180}, numberHead),
            columnHead("lblNet", "Net Price", at.net, numberHead),
            columnHead("lblAmount", "Amount", at.amount, numberHead)};
}

ReportControl lineText(const char* name, const char* column, const ColumnPlace& place) {
    return growing(field(name, column, place.left, 30, place.width, lineOfText, tight));
}

ReportControl lineNumber(const char* name, const char* column, const ColumnPlace& place,
                         const char* numberMask) {
    return field(name, column, place.left, 30, place.width, lineOfText, tightNumber, numberMask);
}

// The discount is a percent of the gross price; the amount of the line is printed as stored, and counts in
// the total as it is printed.
void fillLine(Connection& store, const ReportSource& row, SectionFields& fields) {
    fields.setText("txtProductDes", LookupField(store, "ItemCode", "tblItemMaster", "Description",
                                                row.text("ItemID"), LookupMode::DisplayText));
    const Currency discount = numberOrZero(fields.text("txtDiscount"));
    if (discount.isZero()) fields.setText("txtDiscount", formatNumber(discount, mask::percent));
    fields.setFigure("txtNet", NetPrice(row.currency("UnitPrice"), discount));
    fields.setFigure("txtTotal", numberOrZero(fields.text("txtTotal")));
}
}  // namespace

ReportSection documentHeader(const DocumentPaper& paper) { return documentHeader(paper, columnHeads(paper)); }

ReportSection documentHeader(const DocumentPaper& paper, const QList<ReportControl>& heads) {
    const int right = heads.last().left + heads.last().width;
    return section(SectionKind::PageHeader, 2670,
                   companyBlock(90) + partyBlock(paper) + numberBlock(paper) +
                       QList{line("linHead", edge, 2250, right - edge)} + heads);
}

ReportSection documentLine(const DocumentPaper& paper) {
    const DocumentColumns& at = paper.columns;
    return section(
        SectionKind::Detail, 285,
        {lineNumber("txtOrdered", "Ordered", at.ordered, nullptr),
         lineNumber("txtMoved", paper.moved, at.moved, nullptr),
         growing(field("txtUnit", "Unit", at.unit.left, 30, at.unit.width, lineOfText, tightCentred)),
         lineText("txtItemCode", "ItemID", at.item), lineText("txtProductDes", "", at.description),
         lineNumber("txtGross", "UnitPrice", at.gross, mask::price),
         lineNumber("txtDiscount", "Discount", at.discount, nullptr),
         label("txtSymbol", "%", rightEdge(at.discount), 30, 180, lineOfText, tight),
         lineNumber("txtNet", "", at.net, mask::price),
         lineNumber("txtTotal", "Total", at.amount, mask::amount)});
}

ReportSection documentFooter(const DocumentPaper& paper, const QList<ReportControl>& more) {
    const DocumentColumns& at = paper.columns;
    const QList<ReportControl> controls{
        label("lblRemarks", "Remarks : ", 90, 90, 900, lineOfText),
        growing(field("txtParticulars", "Remarks", 990, 90, 6210, 540)),
        label("lblTotal", "Total = ", at.net.left, 90, 720, lineOfText, numberHead),
        summing(field(paper.totalName, "txtTotal", at.amount.left - 360, 90, at.amount.width + 360,
                      lineOfText, numberHead, mask::amount))};
    return section(SectionKind::ReportFooter, 2325, controls + documentSignatures(paper) + more);
}

QList<ReportControl> documentSignatures(const DocumentPaper& paper) {
    QList<ReportControl> controls;
    for (const Signature& signature : paper.signatures)
        controls += {
            label(signature.name + QString("Head"), signature.caption, signature.left, 810, 2700, lineOfText),
            growing(label(signature.name, "", signature.left, 1530, 2700, lineOfText))};
    return controls;
}

void fillDocumentHeading(const ReportSource& row, SectionFields& fields) {
    fields.setText("txtAddress", row.text("Address") + '\n' + row.text("TelNo"));
    fields.setText("txtTerms", trim(fields.text("txtTerms")) + " Days");
}

ReportEvents documentEvents(Connection& store) {
    return {{on(SectionKind::PageHeader), fillDocumentHeading},
            {on(SectionKind::Detail),
             [&store](const ReportSource& row, SectionFields& fields) { fillLine(store, row, fields); }}};
}

RunTexts documentTexts(Connection& store) {
    RunTexts texts = companyTexts(store);
    texts.labels.insert({{"lblPrepared", GetPreparedBy(store)},
                         {"lblChecked", GetCheckedBy(store)},
                         {"lblApproved", GetApprovedBy(store)}});
    return texts;
}
