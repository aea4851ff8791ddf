#pragma once
#include "platform/ui/modal_form.h"

class QCheckBox;
class QDateTimeEdit;
class QGroupBox;
class QLabel;
class QTimer;

// The confirmation of the machine's clock, which is what document dates begin with.
class frmDateChecker : public ModalForm {
    Q_OBJECT
  public:
    frmDateChecker();

  private:
    // One value of the clock: it follows the clock until a person wants to adjust it.
    struct Value {
        QGroupBox* frame;
        QDateTimeEdit* picker;
        QCheckBox* check;
        QTimer* timer;
    };
    Value makeValue(int index, const QString& caption, QDateTimeEdit* picker, const QString& checkName,
                    const QString& timerName);
    void build();
    void adjust(const Value& value, bool wanted);
    void showNow(const Value& value);
    void cmdOK_Click();

    Value date_;
    Value time_;
    QLabel* question_;
};
