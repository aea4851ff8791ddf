#include "reports/checks/check_report.h"

#include "foundation/amount_in_words.h"
#include "foundation/shared_routines.h"
#include "platform/masks.h"
#include "platform/parsing.h"
#include "platform/ui/boxes.h"
#include "reports/checks/amount_reader.h"
#include "reports/frame/report_preview.h"
#include "reports/frame/report_query.h"

namespace {
Sql checksOf(const QString& voucherNo) {
    return {
        "SELECT tblChecks.*, tblContactMaster.ContactName FROM tblChecks INNER JOIN tblContactMaster ON "
        "tblChecks.ContactNo = tblContactMaster.ContactID WHERE tblChecks.VoucherID = ? "
        "ORDER BY tblChecks.ZevRef",
        {voucherNo}};
}

bool isCash(const QString& status) { return status == "Cash"; }

void fillCheck(const QString& stars, const ReportSource& row, SectionFields& fields) {
    if (isCash(row.text("CheckStatus"))) return fields.endReport();
    const CheckTexts texts = checkTexts(stars, fields.text("txtPayee"), fields.text("txtCheckAmount"));
    fields.setText("txtAmountInWords", texts.words);
    fields.setText("txtPayee", texts.payee);
    fields.setText("txtCheckAmount", texts.amount);
    fields.setVisible("imgCrossCheck", !numberOrZero(row.text("CrossCheck")).isZero());
}

// Words and figure of a check, as both will stand on it, tell the same amount.
bool tellsOneAmount(const QString& stars, const Recordset& row) {
    try {
        const QString figure = formatNumber(row.currency("CheckAmount"), mask::amount);
        const CheckTexts texts = checkTexts(stars, row.trimmed("ContactName"), figure);
        const auto inFigures = parseNumber(QString(texts.amount).remove(u'*'));
        return inFigures && AmountOfWords(texts.words) == inFigures;
    } catch (const SubscriptError&) {
        return false;
    }
}

// The voucher has rows, but the first was paid in cash.
bool isPaidInCash(Connection& store, const QString& voucherNo) {
    const Recordset first = store.execute(checksOf(voucherNo));
    return !first.eof() && isCash(first.trimmed("CheckStatus"));
}

// True when the checks may be printed and there is one; else a box has said what a person must know.
bool isPrintable(Connection& store, const CheckPaper& paper, const QString& voucherNo, bool& isRefused) {
    const auto refusal = checkRefusal(store, paper, voucherNo);
    isRefused = refusal.has_value();
    if (refusal) showBox(*refusal);
    return !isRefused && !isPaidInCash(store, voucherNo);
}
}  // namespace

CheckTexts checkTexts(const QString& stars, const QString& payee, const QString& figure) {
    const double amount = numberOrZero(figure).toDouble();
    return {stars + payee + stars, stars + figure + stars, stars + AmountInWords(amount) + " Only" + stars};
}

std::optional<ReportJobParts> checkReport(Connection& store, const CheckPaper& paper,
                                          const QString& voucherNo) {
    const auto fill = [stars = paper.stars](const ReportSource& row, SectionFields& fields) {
        fillCheck(stars, row, fields);
    };
    return reportOfQuery(store, paper.layout, checksOf(voucherNo), {{on(SectionKind::Detail), fill}},
                         {.labels = {{"imgCheck", GetCompanyLogo(store)}}});
}

std::optional<Box> checkRefusal(Connection& store, const CheckPaper& paper, const QString& voucherNo) {
    for (Recordset row = store.execute(checksOf(voucherNo)); !row.eof(); row.moveNext()) {
        if (isCash(row.trimmed("CheckStatus"))) break;
        if (tellsOneAmount(paper.stars, row)) continue;
        return critical("Check Not Printed!", "The Amount in Words of Check No. " + row.trimmed("CheckNo") +
                                                  " is Not Its Amount in Figures, " +
                                                  formatNumber(row.currency("CheckAmount"), mask::amount) +
                                                  "! Nothing has been Printed...");
    }
    return std::nullopt;
}

ReportPreview* previewChecks(Connection& store, const CheckPaper& paper, const QString& voucherNo) {
    bool isRefused = false;
    if (!isPrintable(store, paper, voucherNo, isRefused)) return nullptr;
    return previewFromEntry(checkReport(store, paper, voucherNo));
}

bool runChecks(Connection& store, const CheckPaper& paper, const QString& voucherNo, ReportTarget target) {
    bool isRefused = false;
    if (!isPrintable(store, paper, voucherNo, isRefused)) return !isRefused;
    return runFromPrintScreen(checkReport(store, paper, voucherNo), target);
}
