#pragma once
#include <QObject>

class ListView;
class QLabel;

// Lets a list be sorted by its headers: the arrow over the column that it is sorted by, and the notice that
// it can be, until it is. New rows are not sorted.
class SortArrow : public QObject {
  public:
    explicit SortArrow(ListView* list);

    QLabel* lblNotice;
    QLabel* imgArrow;

  private:
    void show(int column);
    void hide();
    void place();

    ListView* list_;
    int column_ = -1;
};
