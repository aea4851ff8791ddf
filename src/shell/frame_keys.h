#pragma once
#include <QObject>

class FrameMenus;
class QAction;
class QKeyEvent;
class QWidget;

// The keys of the Record and View menus work from every field: a text box would take Shift+Del for cutting.
class FrameKeys : public QObject {
    Q_OBJECT
  public:
    FrameKeys(QWidget* frame, const FrameMenus& menus);
    bool eventFilter(QObject* target, QEvent* event) override;

  private:
    bool isFrameKey(const QKeyEvent* event) const;

    QWidget* frame_;
    QList<QAction*> items_;
};
