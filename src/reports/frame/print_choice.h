#pragma once
#include "reports/frame/report_start.h"

#include <QGroupBox>

class QRadioButton;

// The Print Choice Group of a print screen: where its reports go.
class PrintChoice : public QGroupBox {
    Q_OBJECT
  public:
    explicit PrintChoice(ReportTarget target = ReportTarget::Preview);
    ReportTarget target() const;
    void setTarget(ReportTarget target);
    // Some kinds of reports are not written to files.
    void setExportsVisible(bool visible);

  private:
    QList<QRadioButton*> options_;  // in the order of ReportTarget
};
