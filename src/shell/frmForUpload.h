#pragma once
#include "books/end_of_day.h"
#include "platform/ui/child_screen.h"

#include <QElapsedTimer>

class ListView;
class QLabel;
class QProgressBar;
class QToolButton;

// The end of day: the queue of documents and items, and the run that turns it into stock valuation. The lists
// as loaded are the working set. Esc closes it when it is idle.
class frmForUpload : public ChildScreen, private EndOfDayView {
    Q_OBJECT
  public:
    frmForUpload();

    bool receive(const ScreenArguments& arguments) override;
    bool queryUnload() override { return !running_; }
    QSize sizeHint() const override;

  public slots:
    // Loads both lists. With nothing queued it says so and the screen closes.
    void RefreshRecord();

  private:
    void upload();
    void postAndCost();
    bool costItems(Boxes& boxes);
    void reload();
    void loadLists();
    void showLists();
    bool nothingQueued() const { return documents_.isEmpty() && items_.isEmpty(); }
    void setRunning(bool running);
    void closeWhenFinished();
    void paintNow();

    void status(const QString& text) override;
    void start(qint64 maximum) override;
    void documentPosted(qsizetype index) override;
    void itemCosted(qsizetype index) override;
    void itemPassedOver(qsizetype) override { passedOver_ = true; }

    QList<QueuedDocument> documents_;
    QList<QueuedItem> items_;
    bool loaded_ = false;
    bool running_ = false;
    bool finished_ = false;
    bool passedOver_ = false;
    QElapsedTimer painted_;

    ListView* lvwTransaction;
    ListView* lvwItems;
    QLabel* lblStatus;
    QProgressBar* pbrStatus;
    QToolButton* imgRefresh;
    QToolButton* imgUpload;
    QToolButton* imgExit;
};
