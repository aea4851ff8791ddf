#include "foundation/frmOpening.h"

#include "foundation/frmChangePassword.h"
#include "foundation/login.h"
#include "foundation/session.h"
#include "foundation/shared_routines.h"
#include "foundation/start.h"
#include "foundation/version.h"
#include "platform/parsing.h"
#include "platform/ui/boxes.h"
#include "platform/ui/combo_box.h"
#include "platform/ui/form.h"
#include "platform/ui/icons.h"
#include "platform/ui/screen_registry.h"
#include "platform/ui/text_box.h"

#include <QGuiApplication>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QScreen>
#include <QTimer>
#include <QVBoxLayout>

namespace {

constexpr int triesAllowed = 3;
constexpr int birdSize = 72;

// The way of the picture down the form, in 1/1440 inch.
namespace bird {
constexpr qint16 top = 1320;
constexpr qint16 bottom = 2760;
constexpr qint16 step = 30;
}  // namespace bird

int pixels(const QWidget* widget, int twips) { return qRound(twips * widget->logicalDpiY() / 1440.0); }
int twips(const QWidget* widget, int pixels) { return qRound(pixels * 1440.0 / widget->logicalDpiY()); }

void loadUserCodes(ComboBox* combo) { LoadComboBox("UserCode", "tblUserMaster", combo, false); }

Box invalidLogin() { return critical("Invalid!", "Invalid User Name or Password, Try Again!"); }

void centre(QWidget* window) {
    window->adjustSize();
    const QRect room = QGuiApplication::primaryScreen()->availableGeometry();
    window->move(room.center() - window->rect().center());
}

}  // namespace

frmOpening::frmOpening()
    : txtUserName(new ComboBox("txtUserName", ComboBox::Open)),
      txtPassword(new TextBox("txtPassword")),
      lblCompany(form::label(GetCompanyName(StoreConnection()))),
      lblVersion(form::label("Version " + versionText())),
      tmrOpen(new QTimer(this)) {
    setObjectName("frmOpening");
    setWindowTitle("Zevrin");
    setAttribute(Qt::WA_DeleteOnClose);
    build();
    loadUserCodes(txtUserName);
    txtUserName->setText("");
    txtUserName->setFiller([this] { loadUserCodes(txtUserName); });
    connect(txtUserName, &ComboBox::entered, txtPassword, [this] { txtPassword->setFocus(); });
    connect(txtPassword, &TextBox::entered, this, &frmOpening::cmdOK_Click);
    tmrOpen->setObjectName("tmrOpen");
    connect(tmrOpen, &QTimer::timeout, this, &frmOpening::tmrOpen_Timer);
    tmrOpen->start(100);
}

void frmOpening::build() {
    auto* columns = new QHBoxLayout(this);
    columns->setContentsMargins(0, 0, 0, 0);
    columns->setSpacing(0);
    columns->addWidget(makePicture());
    auto* right = new QVBoxLayout;
    right->setContentsMargins(28, 24, 28, 20);
    right->setSpacing(10);
    lblCompany->setObjectName("lblCompany");
    lblCompany->setWordWrap(true);
    form::setFont(lblCompany, 1.7, true);
    lblVersion->setObjectName("lblVersion");
    right->addWidget(lblCompany);
    right->addWidget(lblVersion);
    right->addStretch();
    right->addLayout(makeFields());
    right->addWidget(makeLink(), 0, Qt::AlignRight);
    right->addStretch();
    right->addLayout(makeButtons());
    columns->addLayout(right, 1);
    form::setAccessibleFromTexts(this);
    QWidget::setTabOrder(txtUserName, txtPassword);
}

// The strip at the left, down which the picture flies.
QWidget* frmOpening::makePicture() {
    auto* strip = new QFrame;
    strip->setObjectName("picture");
    strip->setStyleSheet(
        "#picture { background: qlineargradient(x1:0, y1:0, x2:0.6, y2:1, stop:0 #1f4e79, stop:1 #257272); "
        "}");
    const int size = pixels(this, birdSize * 15);
    strip->setFixedWidth(size * 5 / 3);
    strip->setMinimumHeight(pixels(this, bird::bottom + bird::step) + size + pixels(this, 600));
    auto* name = new QLabel("Zevrin", strip);
    name->setStyleSheet("color: white; font-size: 20pt; font-weight: bold; background: transparent;");
    name->adjustSize();
    name->move((strip->width() - name->width()) / 2, pixels(this, 500));
    imgBird = new QLabel(strip);
    imgBird->setObjectName("imgBird");
    imgBird->setStyleSheet("background: transparent;");
    imgBird->setPixmap(bundledIcon("bird").pixmap(size, size));
    imgBird->setFixedSize(size, size);
    imgBird->move((strip->width() - size) / 2, pixels(this, bird::top));
    return strip;
}

QLayout* frmOpening::makeFields() {
    txtPassword->setEchoMode(QLineEdit::Password);
    txtUserName->setMinimumWidth(form::charactersWide(txtUserName, 28));
    auto* fields = new QGridLayout;
    fields->setVerticalSpacing(10);
    form::row(fields, 0, 0, "&User Name :", txtUserName);
    form::row(fields, 1, 0, "&Password :", txtPassword);
    return fields;
}

QWidget* frmOpening::makeLink() {
    auto* link = new QPushButton("Change Pass&word");
    link->setObjectName("lblChangePassword");
    link->setFlat(true);
    link->setAutoDefault(true);
    link->setCursor(Qt::PointingHandCursor);
    link->setStyleSheet(
        "QPushButton { border: none; color: palette(link); text-decoration: underline; }"
        "QPushButton:focus { border: 1px dotted palette(link); }");
    connect(link, &QPushButton::clicked, this, &frmOpening::lblChangePassword_Click);
    return link;
}

QLayout* frmOpening::makeButtons() {
    QPushButton* ok = form::button("cmdOK", "&OK");
    QPushButton* cancel = form::button("cmdCancel", "&Cancel");
    connect(ok, &QPushButton::clicked, this, &frmOpening::cmdOK_Click);
    connect(cancel, &QPushButton::clicked, this, &QWidget::close);
    return form::buttonsAtRight({ok, cancel});
}

void frmOpening::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape)
        close();
    else
        QWidget::keyPressEvent(event);
}

void frmOpening::cmdOK_Click() {
    if (txtUserName->text().isEmpty()) {
        showBox(invalidLogin());
        return;
    }
    guarded([this] {
        session().CurrentUserName.clear();
        const auto fullName = ValidateLogin(StoreConnection(), txtUserName->text(), txtPassword->text());
        if (fullName)
            enter(*fullName);
        else
            refuse();
    });
}

void frmOpening::refuse() {
    showBox(invalidLogin());
    txtPassword->setFocus();
    txtPassword->selectAllText();
    if (++failures_ != triesAllowed) return;
    showBox(critical("Maximum Attempt Error!",
                     "You have Reached the Maximum LogIn Attempt System will Shutdown...!"));
    close();
}

void frmOpening::enter(const QString& fullName) {
    const BetweenWindows goingOn;
    session().CurrentUserName = fullName;
    session().CurrentUserCode = sessionUserCode(StoreConnection(), txtUserName->text());
    close();
    if (!guarded([] { ScreenRegistry::instance().open("mdiMain"); })) showLogin();
}

void frmOpening::lblChangePassword_Click() {
    const QString userCode = txtUserName->text();
    if (trim(userCode).isEmpty()) {
        showBox(information("Select User Name...",
                            "Please Select User Name and then Click on Change Password..."));
        return;
    }
    txtPassword->clear();
    frmChangePassword(userCode).showModal();
}

void frmOpening::tmrOpen_Timer() {
    if (birdTop_ == 0) birdTop_ = static_cast<qint16>(twips(this, imgBird->y()));
    if (birdTop_ > bird::bottom) birdTop_ = bird::top;
    birdTop_ = static_cast<qint16>(birdTop_ + bird::step);
    imgBird->move(imgBird->x(), pixels(this, birdTop_));
}

void showOpening() {
    if (!CheckResolution() &&
        !askYes(
            question("Screen Resolution!",
                     "This System Requires a Minimum Screen Resolution of 1024 X 768! Do You Still Want to "
                     "Continue using the System?")))
        return endProcess();
    auto* opening = new frmOpening;
    centre(opening);
    opening->show();
}
