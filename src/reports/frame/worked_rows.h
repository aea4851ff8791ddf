#pragma once
#include "platform/parsing.h"
#include "platform/store/store_error.h"
#include "reports/frame/report_source.h"

#include <functional>
#include <variant>

// Rows that a report has worked out in memory: what a column holds is a function of its row.
template <class Row>
class WorkedRows : public ReportSource {
  public:
    using Cell = std::variant<std::monostate, QString, Currency, QDate>;  // the first: null
    struct Column {
        QString name;
        std::function<Cell(const Row&)> cell;
    };
    WorkedRows(std::vector<Row> rows, std::vector<Column> columns)
        : rows_(std::move(rows)), columns_(std::move(columns)) {}

    bool next() override { return ++row_ < rowCount(); }
    void lookBack(bool looksBack) override { row_ += looksBack ? -1 : 1; }
    qsizetype rowCount() const override { return static_cast<qsizetype>(rows_.size()); }
    QString text(const QString& column) const override {
        const Cell cell = cellOf(column);
        if (const auto* figure = std::get_if<Currency>(&cell)) return figure->toPlainText();
        if (const auto* date = std::get_if<QDate>(&cell)) return date->toString(Qt::ISODate);
        return isNone(cell) ? QString() : trim(std::get<QString>(cell));
    }
    Currency currency(const QString& column) const override { return valueOf<Currency>(column); }
    QDate date(const QString& column) const override { return valueOf<QDate>(column); }
    QDateTime dateTime(const QString& column) const override {
        const QDate day = date(column);
        return day.isValid() ? QDateTime(day, QTime(0, 0)) : QDateTime();
    }
    bool isNull(const QString& column) const override {
        const Cell cell = cellOf(column);
        const auto* date = std::get_if<QDate>(&cell);
        return isNone(cell) || (date && !date->isValid());
    }

  private:
    static bool isNone(const Cell& cell) { return std::holds_alternative<std::monostate>(cell); }
    Cell cellOf(const QString& column) const {
        for (const Column& each : columns_)
            if (each.name == column) return each.cell(rows_[static_cast<size_t>(row_)]);
        throw StoreError(StoreError::general, "There is no column " + column + u'.');
    }
    template <class Value>
    Value valueOf(const QString& column) const {
        const Cell cell = cellOf(column);
        if (isNone(cell)) return {};
        if (const auto* value = std::get_if<Value>(&cell)) return *value;
        throw StoreError(StoreError::typeMismatch, "Data type mismatch in column " + column + u'.');
    }

    std::vector<Row> rows_;
    std::vector<Column> columns_;
    qsizetype row_ = -1;
};
