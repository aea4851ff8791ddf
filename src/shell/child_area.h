#pragma once
#include "platform/ui/child_screen.h"

#include <QMdiArea>
#include <QMdiSubWindow>

// The part of the main window where the child screens live.
class ChildArea : public QMdiArea {
    Q_OBJECT
  public:
    explicit ChildArea(QWidget* frame);

    void host(ChildScreen* screen);
    void bringForward(ChildScreen* screen);

    ChildScreen* activeChild() const;  // null: none
    QList<ChildScreen*> children() const;

    void tile(Qt::Orientation orientation);
    void cascade();
    void arrangeIcons();

  signals:
    void childrenChanged();  // one came, went, or became active

  protected:
    void resizeEvent(QResizeEvent* event) override;

  private:
    void keepPlace(ChildScreen* screen, const QRect& given);
    QRect placeFor(const ChildScreen* screen, const QSize& wanted) const;
    QList<QMdiSubWindow*> shown(bool minimized) const;
};
