#include "documents/line_list.h"

#include "foundation/shared_routines.h"
#include "platform/ui/boxes.h"
#include "platform/ui/screen_registry.h"

LineList::LineList(ListView* view, RecordScreen* screen) : QObject(screen), view_(view), screen_(screen) {}

void LineList::clear() {
    view_->clear();
    emit changed();
}

void LineList::takeOut(int row) {
    view_->removeRow(row);
    emit changed();
}

void LineList::removeLine() {
    const int row = view_->currentRow();
    if (row < 0 || !askYes(confirmDeleteBox())) return;
    screen_->mblnUpdated = true;
    takeOut(row);
}

Currency LineList::sum(int column) const {
    Currency sum;
    for (const QStringList& row : view_->rows()) sum += numberOrZero(row.value(column));
    return sum;
}

void LineList::hold(LinePopup* popup) {
    screen_->mblnUpdated = true;
    popup_ = popup;
    connect(popup, &ChildScreen::unloaded, this, &LineList::changed);
}

void LineList::showPopup() { ScreenRegistry::instance().show(popup_); }

bool LineList::popupIsOpen() const { return popup_ && !popup_->hasUnloaded(); }

bool LineList::popupHolds() {
    if (!popup_) return false;
    popup_->holdFront();
    return true;
}

void LineList::abandonPopup() {
    if (popup_) popup_->abandon();
}
