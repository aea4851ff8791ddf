#pragma once
#include "documents/check_status.h"
#include "platform/ui/child_screen.h"

class ComboBox;
class QCheckBox;
class DateBox;
class TextBox;

// "Update Check Status": what one check stands at. It goes with the loss of the front.
class CheckDialog : public ChildScreen {
    Q_OBJECT
  public:
    // The book outlives the dialog.
    CheckDialog(const CheckBook& book, const QString& name, qint64 key);

  public slots:
    void SaveRecord();

  signals:
    void saved();

  protected:
    void activated() override;
    void deactivated() override;

  private:
    void layOut();
    void connectControls();
    void load();
    CheckStatusEntry entry() const;
    void showEntry(const CheckStatusEntry& entry);
    void change(const std::function<void(CheckStatusEntry&)>& rule);

    const CheckBook& book_;
    StoredCheck loaded_;

    TextBox* txtPaymentNo;
    TextBox* txtCheckNo;
    DateBox* txtCheckDate;
    ComboBox* cboCheckStatus;
    QCheckBox* chkCash;
    QCheckBox* chkNegotiated;
};
