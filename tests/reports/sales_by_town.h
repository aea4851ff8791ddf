#pragma once
#include "reports/frame/report_run.h"

#include "platform/masks.h"

// Rows of texts, for reports without a store.
class Rows : public ReportSource {
  public:
    Rows(const QStringList& columns, QList<QStringList> rows) : columns_(columns), rows_(std::move(rows)) {}
    bool next() override { return ++at_ < rows_.size(); }
    qsizetype rowCount() const override { return rows_.size(); }
    void lookBack(bool looksBack) override { at_ += looksBack ? -1 : 1; }
    QString text(const QString& column) const override { return rows_[at_][columns_.indexOf(column)]; }
    Currency currency(const QString& column) const override {
        return Currency::fromDouble(text(column).toDouble());
    }
    QDateTime dateTime(const QString&) const override { return {}; }
    bool isNull(const QString& column) const override { return text(column).isEmpty(); }

  private:
    QStringList columns_;
    QList<QStringList> rows_;
    qsizetype at_ = -1;
};

// A made-up list of sales by town: as a whole report is written.
inline const ReportLayout salesByTown{
    "prtSalesByTown",
    "Sales by Town...",
    letterPortrait(720, 720, 10800),
    {section(SectionKind::PageHeader, 540,
             {label("lblTitle", "Sales by Town", 0, 0, 4000, 270, bold(10)),
              label("lblAmount", "Amount", 3000, 300, 1200, 225, rightAligned())}),
     groupHeader(SectionKind::GroupHeader1, "Town", 300,
                 {field("txtTown", "Town", 0, 30, 3000, 225, bold())}),
     section(SectionKind::Detail, 270,
             {field("txtName", "Name", 300, 0, 2500, 225),
              field("txtAmount", "Amount", 3000, 0, 1200, 225, rightAligned(), mask::amount),
              field("txtShare", "", 4400, 0, 1200, 225, rightAligned(), mask::amount)}),
     section(SectionKind::GroupFooter1, 300,
             {label("lblSum", "Total of the town", 300, 0, 2500, 225),
              summing(field("txtSum", "Amount", 3000, 0, 1200, 225, rightAligned(), mask::amount))}),
     section(SectionKind::PageFooter, 300,
             {label("lblPage", "Page:", 0, 0, 450, 225),
              showing(Shows::PageText, field("fldPageNo", "", 480, 0, 3000, 225))}),
     section(SectionKind::ReportFooter, 300,
             {showing(Shows::Count, field("txtCount", "Name", 0, 0, 600, 225)),
              summing(field("txtAll", "Amount", 3000, 0, 1200, 225, rightAligned(), mask::amount))})}};

inline ReportEvents salesByTownEvents() {
    return {{on(SectionKind::Detail), [](const ReportSource& row, SectionFields& fields) {
                 fields.setFigure("txtShare", divide(row.currency("Amount"), Currency::fromInteger(4)));
             }}};
}

inline QStringList sale(const QString& town, const QString& name, double amount) {
    return {town, name, QString::number(amount)};
}

inline ReportPages salesReport(QList<QStringList> sales) {
    Rows rows({"Town", "Name", "Amount"}, std::move(sales));
    return runReport(salesByTown, rows, salesByTownEvents());
}

inline QList<QStringList> manySales(int count, const QString& town = "Cebu") {
    QList<QStringList> sales;
    for (int i = 1; i <= count; ++i) sales += sale(town, QString("Customer %1").arg(i), i);
    return sales;
}
