#pragma once
#include <QWidget>

class ListView;
class QLabel;

// The line below a list that shows the total of a column, bold and under that column, wherever it goes.
class TotalStrip : public QWidget {
    Q_OBJECT
  public:
    // The label and the box that shows the total become its own.
    TotalStrip(const ListView* list, int column, QLabel* label, QWidget* total);
    QSize sizeHint() const override;

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void place();

    const ListView* list_;
    int column_;
    QLabel* label_;
    QWidget* total_;
};
