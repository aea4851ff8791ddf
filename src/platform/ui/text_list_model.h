#pragma once
#include "platform/ui/list_view.h"

#include <QAbstractTableModel>

// The rows of a list: texts, whether each is marked, and the order they stand in.
class TextListModel : public QAbstractTableModel {
    Q_OBJECT
  public:
    TextListModel(const QList<ListColumn>& columns, QObject* parent);

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    bool setData(const QModelIndex& index, const QVariant& value, int role) override;

    void setHeadings(const QStringList& headings);

    const QList<QStringList>& rows() const { return rows_; }
    void setText(int row, int column, const QString& text);
    void insertRow(int row, const QStringList& texts);
    void setRows(const QList<QStringList>& rows);
    void removeRow(int row);

    // A box to mark each row by, in front of its first text.
    void showMarks();
    bool showsMarks() const { return showsMarks_; }
    bool isMarked(int row) const { return marks_.value(row); }
    void setMarked(int row, bool marked);
    void setAllMarked(bool marked);

    void sort(int column, Qt::SortOrder order) override;

  private:
    QStringList wholeRow(QStringList texts) const;
    Qt::Alignment alignment(int column) const;
    bool shows(int row, int column) const;
    bool hasBox(const QModelIndex& index) const;
    std::vector<int> sorted(int column, Qt::SortOrder order) const;
    void moveSelection(const std::vector<int>& order);

    QList<ListColumn> columns_;
    QList<QStringList> rows_;
    QList<bool> marks_;  // of the rows, in their order
    bool showsMarks_ = false;
};
