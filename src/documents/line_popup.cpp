#include "documents/line_popup.h"

#include "platform/ui/boxes.h"
#include "platform/ui/form.h"
#include "platform/ui/grid_picker.h"
#include "platform/ui/list_view.h"
#include "platform/ui/settled.h"

#include <QKeyEvent>
#include <QShortcut>

LinePopup::LinePopup(const QString& name, const QString& caption, const LineHabits& habits)
    : ChildScreen(name, caption, Centred, Popup),
      cmdSave(form::button("cmdSave", "&OK", "save")),
      cmdCancel(form::button("cmdCancel", "&Close", "close")),
      habits_(habits) {
    connect(cmdSave, &QPushButton::clicked, this, &LinePopup::leaveFieldAndSave);
    connect(cmdCancel, &QPushButton::clicked, this, &LinePopup::cancel);
    for (const auto key : {Qt::Key_Return, Qt::Key_Enter})
        connect(new QShortcut(Qt::CTRL | key, this), &QShortcut::activated, cmdSave, &QPushButton::click);
}

QHBoxLayout* LinePopup::buttons() const { return form::buttonsAtRight({cmdSave, cmdCancel}); }

// Above the list that the lines go to, so that those just typed stay in sight.
void LinePopup::showEvent(QShowEvent* event) {
    ChildScreen::showEvent(event);
    const auto* list = opener() ? opener()->findChild<ListView*>("lvwItems") : nullptr;
    if (!list) return;
    const int above = list->mapToGlobal(QPoint(0, 0)).y() - height();
    move(x(), std::max(above, opener()->window()->y()));
}

void LinePopup::startLine() {
    mblnAddmode = true;
    clearFields();
}

// OK

// By its mnemonic OK is pressed from within a field, which is left first and may keep the focus.
void LinePopup::leaveFieldAndSave() {
    cmdSave->setFocus();
    if (cmdSave->hasFocus()) pressSave();
}

void LinePopup::pressSave() {
    if (save() != SaveResult::Added || closing_) return;
    if (habits_.staysOpen)
        startLine();
    else
        closePopup();
}

LinePopup::SaveResult LinePopup::save() {
    bool closes = false;
    Outcome outcome;
    const bool ran = guarded([&] {
        outcome = askUntilSettled([&](const Answers& answers) {
            const LineCheck check = checkTyped(answers);
            closes = check.closesPopup;
            return check.outcome;
        });
    });
    if (!ran) return SaveResult::Failed;
    if (const auto* fault = std::get_if<Fault>(&outcome)) return refuse(*fault, closes);
    addTyped();
    SkipResave = true;
    return SaveResult::Added;
}

LinePopup::SaveResult LinePopup::refuse(const Fault& fault, bool closes) {
    tell(fault);
    if (closes) abandon();
    return SaveResult::Refused;
}

void LinePopup::tell(const Fault& fault) {
    telling_ = true;
    showFault(fault, this);
    telling_ = false;
}

// Leaving

void LinePopup::cancel() {
    SkipResave = mblnAddmode || !habits_.keepsLine;
    closePopup();
}

void LinePopup::abandon() {
    SkipResave = true;
    closePopup();
}

void LinePopup::closePopup() {
    closing_ = true;
    unload();
}

bool LinePopup::queryUnload() {
    if (!closing_) {
        showBox(critical("Please Don't Press X Button!",
                         "You cannot Press X mark, please click on Cancel Button to exit without saving!"));
        return false;
    }
    // A refused line is lost; where the checks themselves fail it goes back as it came.
    if (!SkipResave && save() == SaveResult::Failed) putBack();
    return true;
}

void LinePopup::unloading() {
    WatchFocus = false;
    if (picker_) picker_->unload();
}

void LinePopup::keyPressEvent(QKeyEvent* event) {
    if (event->key() == Qt::Key_Escape) return cancel();
    ChildScreen::keyPressEvent(event);
}

// Keeping the front

void LinePopup::activated() {
    if (!picker_) WatchFocus = true;
}

void LinePopup::deactivated() {
    if (WatchFocus && !closing_) holdFront();
}

void LinePopup::holdFront() {
    const QPointer<LinePopup> stillOpen(this);
    showBox(exclamation("Lost Focus!", "Please Click on Close Button to Exit!"));
    if (stillOpen) comeForward();
}

void LinePopup::comeForward() {
    raise();
    activateWindow();
}

void LinePopup::openPicker(const std::function<GridPicker*()>& open) {
    if (picker_ && !picker_->hasUnloaded()) return;
    WatchFocus = false;
    picker_ = open();
    if (picker_)
        connect(picker_, &ChildScreen::unloaded, this, [this] { WatchFocus = true; });
    else
        WatchFocus = true;
}
