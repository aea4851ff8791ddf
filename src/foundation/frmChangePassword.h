#pragma once
#include "platform/ui/modal_form.h"

class TextBox;

// The change of a user's own password, for the code that the opener names.
class frmChangePassword : public ModalForm {
    Q_OBJECT
  public:
    explicit frmChangePassword(const QString& userCode);
    const QString mstrUserCode;

  private:
    void build();
    void cmdOK_Click();

    TextBox* txtOldPassword;
    TextBox* txtNewPassword;
    TextBox* txtConfirmPassword;
};
