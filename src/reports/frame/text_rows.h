#pragma once
#include "reports/frame/report_source.h"

#include <functional>

// Rows that hold nothing but texts, made as they are asked for.
class TextRows : public ReportSource {
  public:
    using TextOf = std::function<QString(qsizetype row, const QString& column)>;
    TextRows(qsizetype count, TextOf textOf) : count_(count), textOf_(std::move(textOf)) {}

    bool next() override { return ++row_ < count_; }
    void lookBack(bool looksBack) override { row_ += looksBack ? -1 : 1; }
    qsizetype rowCount() const override { return count_; }
    QString text(const QString& column) const override { return textOf_(row_, column); }
    Currency currency(const QString&) const override { return {}; }
    QDateTime dateTime(const QString&) const override { return {}; }
    bool isNull(const QString& column) const override { return text(column).isEmpty(); }

  private:
    qsizetype count_;
    TextOf textOf_;
    qsizetype row_ = -1;
};
