#include "shell/frmShortcuts.h"

#include "foundation/shared_routines.h"
#include "platform/ui/boxes.h"
#include "platform/ui/enter_key.h"
#include "platform/ui/form.h"
#include "platform/ui/icons.h"
#include "shell/user_menus.h"

#include <QApplication>
#include <QKeyEvent>
#include <QListWidget>
#include <QListWidgetItem>
#include <QVBoxLayout>

namespace {

struct Entry {
    int right;
    const char* caption;
    const char* key;
    const char* icon;
};

// In front of the others, by the user's rows. The company's parameters go by 305 here, 304 in the menu.
constexpr Entry byRight[] = {
    {101, "Sales Order", "frmSalesGrid", "sales"},
    {102, "Payment Receipt", "frmReceiptGrid", "receipt"},
    {103, "Purchase Order", "frmPurchaseGrid", "purchase"},
    {104, "Disbursement Entry", "frmDisbursementGrid", "disbursement"},
    {201, "Product Maintenance", "frmItem", "item"},
    {202, "Contact Maintenance", "frmContacts", "contact"},
    {203, "Unit Maintenance", "frmUnitGrid", "unit"},
    {301, "System User Profile", "frmUserGrid", "users"},
    {305, "Company Parameter", "frmCompanySetup", "company"},
};

constexpr Entry cashRegister{0, "Cash Register", "frmPOSCash", "register"};

constexpr Entry everybodys[] = {
    {0, "Search Database", "frmSearch", "search"},
    {0, "Calculator", "frmCalculator", "calculator"},
    {0, "Zevrin Help Desk", "frmHelp", "help"},
    {0, "Switch User", "Switch", "switch"},
    {0, "Exit System", "Exit", "exit"},
};

constexpr int keyRole = Qt::UserRole;
constexpr QSize iconSize(64, 64);

int widestCaption(const QFontMetrics& metrics) {
    int width = metrics.horizontalAdvance(cashRegister.caption);
    for (const Entry& entry : byRight) width = std::max(width, metrics.horizontalAdvance(entry.caption));
    for (const Entry& entry : everybodys) width = std::max(width, metrics.horizontalAdvance(entry.caption));
    return width;
}

// The picture keeps its colours when its entry is selected.
QIcon steadyIcon(const QString& name, double pixelRatio) {
    const QPixmap picture = bundledIcon(name).pixmap(iconSize, pixelRatio);
    QIcon icon(picture);
    icon.addPixmap(picture, QIcon::Selected);
    return icon;
}

const Entry* entryOf(int right) {
    const auto* found = std::find_if(std::begin(byRight), std::end(byRight),
                                     [right](const Entry& entry) { return entry.right == right; });
    return found == std::end(byRight) ? nullptr : found;
}

QLabel* heading(const QString& text, double size, bool bold) {
    QLabel* label = form::label(text);
    form::setFont(label, size, bold);
    return label;
}

constexpr const char* panelStyle =
    "frmShortcuts { background: palette(base); }"
    "#banner { background: qlineargradient(x1:0, y1:0, x2:1, y2:0, stop:0 #1f4e79, stop:1 #257272); }"
    "#banner QLabel { color: white; background: transparent; }"
    "#lvMenu { background: transparent; border: none; }"
    "#lvMenu::item { border: 2px solid transparent; border-radius: 8px; padding: 10px 6px 6px 6px; "
    "color: palette(text); }"
    "#lvMenu::item:hover { background: palette(alternate-base); }"
    "#lvMenu::item:selected { background: palette(alternate-base); border-color: palette(highlight); }";

}  // namespace

frmShortcuts::frmShortcuts(Connection& store)
    : store_(store), lblCompany(heading({}, 1.8, true)), lvMenu(new QListWidget) {
    setObjectName("frmShortcuts");
    setWindowTitle("System Shortcuts");
    setAccessibleName(windowTitle());
    setStyleSheet(panelStyle);
    build();
    fill(store);
}

void frmShortcuts::build() {
    auto* banner = new QFrame;
    banner->setObjectName("banner");
    auto* words = new QVBoxLayout(banner);
    words->setContentsMargins(24, 16, 24, 16);
    words->addWidget(lblCompany);
    words->addWidget(heading(windowTitle(), 1.1, false));

    lvMenu->setObjectName("lvMenu");
    lvMenu->setAccessibleName(windowTitle());
    lvMenu->setViewMode(QListView::IconMode);
    lvMenu->setMovement(QListView::Static);
    lvMenu->setResizeMode(QListView::Adjust);
    lvMenu->setIconSize(iconSize);
    lvMenu->setGridSize(
        QSize(widestCaption(fontMetrics()) + 48, iconSize.height() + fontMetrics().height() * 5));
    lvMenu->setSpacing(8);
    lvMenu->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    lvMenu->installEventFilter(this);
    connect(lvMenu, &QListWidget::itemDoubleClicked, this, &frmShortcuts::choose);

    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(banner);
    auto* room = new QVBoxLayout;
    room->setContentsMargins(24, 20, 24, 20);
    room->addWidget(lvMenu);
    layout->addLayout(room, 1);
}

// Each time that it comes back: the company may have got another name meanwhile.
void frmShortcuts::showEvent(QShowEvent* event) {
    guarded([this] { lblCompany->setText(GetCompanyName(store_)); });
    QFrame::showEvent(event);
}

void frmShortcuts::fill(Connection& store) {
    for (const int right : userRights(store))
        if (const Entry* entry = entryOf(right)) add(entry->caption, entry->key, entry->icon);
    if (UserHasAccess(store, "POSSuper")) add(cashRegister.caption, cashRegister.key, cashRegister.icon);
    for (const Entry& entry : everybodys) add(entry.caption, entry.key, entry.icon);
    lvMenu->setCurrentRow(0);
}

void frmShortcuts::add(const char* caption, const char* key, const char* icon) {
    auto* item = new QListWidgetItem(steadyIcon(icon, devicePixelRatioF()), caption, lvMenu);
    item->setData(keyRole, QString(key));
    item->setTextAlignment(Qt::AlignHCenter | Qt::AlignTop);
}

void frmShortcuts::choose(const QListWidgetItem* item) {
    if (item) emit chosen(item->data(keyRole).toString(), item->text());
}

bool frmShortcuts::hasTheFocus() const { return isVisible() && isAncestorOf(QApplication::focusWidget()); }

void frmShortcuts::takeFocus() { lvMenu->setFocus(); }

bool frmShortcuts::eventFilter(QObject* watched, QEvent* event) {
    const bool enter = event->type() == QEvent::KeyPress && isEnterKey(static_cast<QKeyEvent*>(event)->key());
    if (!enter) return QFrame::eventFilter(watched, event);
    choose(lvMenu->currentItem());
    return true;
}
