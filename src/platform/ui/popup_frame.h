#pragma once
#include <QToolButton>
#include <QWidget>

// The frame and the title of a popup, drawn by the program, so that a popup has them on every desktop. The
// popup is moved by its title and closed, as by the control box of a window, by the cross in it.
class PopupFrame : public QWidget {
    Q_OBJECT
  public:
    // Gives the window a frame, before it is shown. Its own layout keeps within.
    static void dress(QWidget* window);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;

  private:
    explicit PopupFrame(QWidget* window);
    int titleHeight() const;
    void place();

    class QToolButton* close_;
    QPoint grip_;  // where the title was taken, from the corner of the window
};
