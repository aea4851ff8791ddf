#pragma once
#include "platform/store/recordset.h"

// The rows that a report walks, once, from the first to the last. Reads as those of a Recordset: a null is an
// empty text, 0 or a null date; StoreError for a column that is not there, or that holds no such value.
class ReportSource {
  public:
    virtual ~ReportSource() = default;
    virtual bool next() = 0;  // to the first row at first; false past the last
    // While true, reads come from the row before: what a group's footer is made from.
    virtual void lookBack(bool looksBack) = 0;
    virtual qsizetype rowCount() const = 0;                      // of all rows
    virtual QString text(const QString& column) const = 0;       // trimmed; a number in plain digits
    virtual Currency currency(const QString& column) const = 0;  // of any number: a count of 5 is 5
    virtual QDateTime dateTime(const QString& column) const = 0;
    virtual bool isNull(const QString& column) const = 0;
    virtual QDate date(const QString& column) const { return dateTime(column).date(); }
    // A text as it is stored, to look up what belongs to it.
    virtual QByteArray key(const QString& column) const { return text(column).toUtf8(); }
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
    qsizetype rowCount() const override { return rows_.rowCount(); }
    QString text(const QString& column) const override {
        const bool isAmount = rows_.kind(column) == ColumnKind::Currency && !rows_.isNull(column);
        return isAmount ? rows_.currency(column).toPlainText() : rows_.trimmed(column);
    }
    Currency currency(const QString& column) const override {
        return rows_.kind(column) == ColumnKind::Integer ? Currency::fromInteger(rows_.integer(column))
                                                         : rows_.currency(column);
    }
    QDateTime dateTime(const QString& column) const override { return rows_.dateTime(column); }
    QDate date(const QString& column) const override { return rows_.date(column); }
    bool isNull(const QString& column) const override { return rows_.isNull(column); }
    QByteArray key(const QString& column) const override { return rows_.text(column).toUtf8(); }

  private:
    Recordset rows_;
    bool started_ = false;
};
