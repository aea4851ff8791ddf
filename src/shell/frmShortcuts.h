#pragma once
#include <QFrame>

class Connection;
class QLabel;
class QListWidget;
class QListWidgetItem;

// The panel over the empty main window: large icons, one for each screen that the user may open. It is built
// at login, from the same rights as the menus.
class frmShortcuts : public QFrame {
    Q_OBJECT
    Q_PROPERTY(bool mblnFocus READ hasTheFocus)
  public:
    explicit frmShortcuts(Connection& store);
    bool hasTheFocus() const;
    void takeFocus();

  signals:
    // The key of the entry: a screen's name, "frmHelp", "Switch" or "Exit"; its caption.
    void chosen(const QString& key, const QString& caption);

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void showEvent(QShowEvent* event) override;

  private:
    void build();
    void fill(Connection& store);
    void add(const char* caption, const char* key, const char* icon);
    void choose(const QListWidgetItem* item);

    Connection& store_;
    QLabel* lblCompany;
    QListWidget* lvMenu;
};
