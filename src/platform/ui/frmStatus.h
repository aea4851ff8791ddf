#pragma once
#include "platform/progress.h"
#include "platform/ui/front_watch.h"

#include <QElapsedTimer>
#include <QWidget>
#include <memory>

class QLabel;
class QProgressBar;

// The shared progress box: lblStatus and pbrStatus. Not modal, centred; the window keeps painting while the
// work goes on, and takes no input. Work within the work may begin and end on the same box: it then shows the
// inner work, and the outer one again after it. However often it is set, it paints some twenty times a
// second.
class frmStatus : public QWidget, public Progress {
    Q_OBJECT
  public:
    frmStatus();
    ~frmStatus() override;
    void begin(const QString& text, qint64 maximum) override;
    void setText(const QString& text) override;
    void setValue(qint64 value) override;
    void end() override;

  protected:
    void closeEvent(QCloseEvent* event) override;

  private:
    struct Work {
        QString text;
        qint64 maximum = 0;
        qint64 value = 0;
    };
    void showWork();
    void comeUp();
    void paintNow();

    QLabel* lblStatus;
    QProgressBar* pbrStatus;
    QList<Work> works_;
    QElapsedTimer sincePaint_;
    std::unique_ptr<FrontHold> hold_;
};

// Keeps the windows painting while a statement waits for another workstation.
void installIdleHook();
