#pragma once
#include "platform/ui/modal_form.h"

#include <optional>

class TextBox;

// Asks for the password of the store's server, where none of the places that the client library knows gives
// it.
class frmServerPassword : public ModalForm {
    Q_OBJECT
  public:
    frmServerPassword();
    // What was typed; nothing when the form was left.
    static std::optional<QString> ask();

  private:
    void build();

    TextBox* txtPassword;
    std::optional<QString> given_;
};
