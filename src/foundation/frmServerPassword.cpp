#include "foundation/frmServerPassword.h"

#include "platform/ui/form.h"
#include "platform/ui/text_box.h"

#include <QGridLayout>
#include <QPushButton>

frmServerPassword::frmServerPassword()
    : ModalForm("frmServerPassword", "Password of the Server"), txtPassword(new TextBox("txtPassword")) {
    build();
}

std::optional<QString> frmServerPassword::ask() {
    frmServerPassword form;
    form.showModal();
    return form.given_;
}

void frmServerPassword::build() {
    txtPassword->setEchoMode(QLineEdit::Password);
    txtPassword->setMinimumWidth(form::charactersWide(txtPassword, 24));
    auto* fields = new QGridLayout;
    form::row(fields, 0, 0, "&Password :", txtPassword);
    QPushButton* ok = form::button("cmdOK", "&OK");
    QPushButton* cancel = form::button("cmdCancel", "&Cancel");
    const auto give = [this] {
        given_ = txtPassword->text();
        close();
    };
    connect(txtPassword, &TextBox::entered, this, give);
    connect(ok, &QPushButton::clicked, this, give);
    connect(cancel, &QPushButton::clicked, this, &QWidget::close);
    layOut(fields, {ok, cancel});
}
