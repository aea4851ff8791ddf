#include "shell/frmAbout.h"

#include "foundation/session.h"
#include "foundation/shared_routines.h"
#include "foundation/version.h"
#include "platform/ui/boxes.h"
#include "platform/ui/form.h"
#include "platform/ui/icons.h"

#include <QHBoxLayout>
#include <QProcess>
#include <QStandardPaths>
#include <QVBoxLayout>

namespace {

// The desktop's tool that shows what the computer is made of; empty: it has none.
QString systemInformationTool() {
    for (const char* tool : {"kinfocenter", "hardinfo2", "hardinfo"})
        if (const QString path = QStandardPaths::findExecutable(tool); !path.isEmpty()) return path;
    return {};
}

void StartSysInfo() {
    const QString tool = systemInformationTool();
    if (tool.isEmpty() || !QProcess::startDetached(tool, {}))
        showBox(exclamation("Zevrin", "System Information Is Unavailable At This Time"));
}

QLabel* line(const QString& name, const QString& text, double size = 1) {
    QLabel* label = form::label(text);
    label->setObjectName(name);
    form::setFont(label, size, size > 1);
    return label;
}

}  // namespace

frmAbout::frmAbout() : ModalForm("frmAbout", "About Zevrin") {
    auto* picture = new QLabel;
    picture->setPixmap(bundledIcon("bird").pixmap(96, 96));
    picture->setAccessibleName("Zevrin");
    auto* words = new QVBoxLayout;
    words->addWidget(line("lblTitle", "Management Information System", 1.4));
    words->addWidget(line("lblVersion", "Version :   " + versionText()));
    words->addSpacing(12);
    words->addWidget(line("lblCompanyName", GetCompanyName(StoreConnection())));
    words->addStretch();
    auto* top = new QHBoxLayout;
    top->addWidget(picture, 0, Qt::AlignTop);
    top->addSpacing(12);
    top->addLayout(words, 1);

    QPushButton* information = form::button("cmdSysInfo", "&System Info...");
    QPushButton* ok = form::button("cmdOK", "&OK");
    ok->setDefault(true);
    connect(information, &QPushButton::clicked, this, &StartSysInfo);
    connect(ok, &QPushButton::clicked, this, &QWidget::close);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(20, 20, 20, 16);
    layout->addLayout(top);
    layout->addSpacing(12);
    layout->addLayout(form::buttonsAtRight({information, ok}));
    ok->setFocus();
}
