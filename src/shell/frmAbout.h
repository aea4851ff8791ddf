#pragma once
#include "platform/ui/modal_form.h"

// What this program is, its version, and whose it is.
class frmAbout : public ModalForm {
    Q_OBJECT
  public:
    frmAbout();
};
