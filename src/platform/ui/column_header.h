#pragma once
#include <QHeaderView>
#include <QList>
#include <QPainter>

// The headings of a list. Each stands where the texts of its column stand, with room for the arrow of a sort
// at its other end. The free width of the list goes to one column, that of the names, which also gives way
// when there is too little.
class ColumnHeader : public QHeaderView {
    Q_OBJECT
  public:
    explicit ColumnHeader(QWidget* list);

    // Columns as wide as their characters and their headings need. The widest column of texts is that of the
    // names. A column has characters and a kind, of which Text is one.
    template <class Column>
    void setColumns(const QList<Column>& columns) {
        int names = -1;
        for (int i = 0; i < columns.size(); ++i) {
            const bool isWider = names < 0 || columns[i].characters > columns[names].characters;
            if (columns[i].kind == Column::Text && isWider) names = i;
            setColumnWidth(i, columns[i].characters);
        }
        setNameColumn(names);
    }

    // The size at which its list shows all columns, before the free width is given away, and some rows, as
    // far as a small desktop has room.
    QSize listSize(const QAbstractScrollArea* list) const;
    // Of all columns, before the free width is given away.
    int neededLength() const;
    // The part of a heading where the arrow of a sort stands, in the coordinates of the header.
    QRect arrowRect(int section) const;

  protected:
    void paintSection(QPainter* painter, const QRect& rect, int section) const override;
    QSize sectionSizeFromContents(int section) const override;
    void resizeEvent(QResizeEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    void keepWidths();
    void setColumnWidth(int section, int characters);
    void setNameColumn(int section);
    void fit();
    void sectionSized(int section, int width);
    bool standsRight(int section) const;
    QRect arrowWithin(const QRect& rect, int section) const;

    int names_ = -1;      // the column that takes the free width; -1: none
    int namesWidth_ = 0;  // what it needs by itself
    bool fitting_ = false;
};
