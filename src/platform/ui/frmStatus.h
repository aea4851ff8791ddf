#pragma once
#include "platform/progress.h"

#include <QWidget>

class QLabel;
class QProgressBar;

// The shared progress box: lblStatus and pbrStatus. Not modal, centred; the window keeps painting while the
// work goes on, and takes no input.
class frmStatus : public QWidget, public Progress {
    Q_OBJECT
  public:
    frmStatus();
    void begin(const QString& text, qint64 maximum) override;
    void setText(const QString& text) override;
    void setValue(qint64 value) override;
    void end() override;

  private:
    void paintNow();
    QLabel* lblStatus;
    QProgressBar* pbrStatus;
    qint64 maximum_ = 0;
    qint64 lastPaint_ = 0;
};
