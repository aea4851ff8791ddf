#include "foundation/frmChangePassword.h"

#include "foundation/login.h"
#include "foundation/session.h"
#include "foundation/shared_routines.h"
#include "platform/ui/boxes.h"
#include "platform/ui/form.h"
#include "platform/ui/settled.h"
#include "platform/ui/text_box.h"

namespace {

TextBox* passwordBox(const QString& name) {
    auto* box = new TextBox(name);
    box->setEchoMode(QLineEdit::Password);
    box->setMinimumWidth(form::charactersWide(box, 24));
    return box;
}

}  // namespace

frmChangePassword::frmChangePassword(const QString& userCode)
    : ModalForm("frmChangePassword", "Change Password"),
      mstrUserCode(userCode),
      txtOldPassword(passwordBox("txtOldPassword")),
      txtNewPassword(passwordBox("txtNewPassword")),
      txtConfirmPassword(passwordBox("txtConfirmPassword")) {
    build();
}

void frmChangePassword::build() {
    auto* fields = new QGridLayout;
    form::row(fields, 0, 0, "O&ld Password :", txtOldPassword);
    form::row(fields, 1, 0, "&New Password :", txtNewPassword);
    form::row(fields, 2, 0, "Con&firm Password :", txtConfirmPassword);

    QPushButton* ok = form::button("cmdOK", "&OK");
    QPushButton* cancel = form::button("cmdCancel", "&Cancel");
    connect(ok, &QPushButton::clicked, this, &frmChangePassword::cmdOK_Click);
    connect(cancel, &QPushButton::clicked, this, &QWidget::close);
    layOut(fields, {ok, cancel});
}

void frmChangePassword::cmdOK_Click() {
    try {
        const Outcome outcome = changePassword(
            StoreConnection(),
            {mstrUserCode, txtOldPassword->text(), txtNewPassword->text(), txtConfirmPassword->text()});
        if (isDone(outcome)) close();
        settled(outcome, this);
    } catch (const StoreError& error) {
        showBox(saveErrorBox(error));
    }
}
