#pragma once
#include "platform/store/recordset.h"

// The rows that a report walks, once, from the first to the last. Reads as those of a Recordset: a null is an
// empty text, 0 or a null date; StoreError for a column that is not there.
class ReportSource {
  public:
    virtual ~ReportSource() = default;
    virtual bool next() = 0;  // to the first row at first; false past the last
    // While true, reads come from the row before: what a group's footer is made from.
    virtual void lookBack(bool looksBack) = 0;
    virtual QString text(const QString& column) const = 0;  // trimmed
    virtual Currency currency(const QString& column) const = 0;
    virtual QDateTime dateTime(const QString& column) const = 0;
    virtual bool isNull(const QString& column) const = 0;
};

// The rows of a query.
class RecordsetSource : public ReportSource {
  public:
    explicit RecordsetSource(Recordset rows) : rows_(std::move(rows)) {}
    bool next() override {
        if (started_) rows_.moveNext();
        started_ = true;
        return !rows_.eof();
    }
    void lookBack(bool looksBack) override { looksBack ? rows_.movePrevious() : rows_.moveNext(); }
    QString text(const QString& column) const override { return rows_.trimmed(column); }
    Currency currency(const QString& column) const override { return rows_.currency(column); }
    QDateTime dateTime(const QString& column) const override { return rows_.dateTime(column); }
    bool isNull(const QString& column) const override { return rows_.isNull(column); }

  private:
    Recordset rows_;
    bool started_ = false;
};
