#include "shell/frame_state.h"

#include <QLabel>
#include <QStatusBar>
#include <QVariant>

namespace {
constexpr const char *editing = "Editing...", *upToDate = "Up to date";

QLabel* addPanel(QStatusBar* bar, const QString& key, const QString& accessibleName, int stretch) {
    auto* panel = new QLabel;
    panel->setObjectName(bar->objectName() + '_' + key);
    panel->setAccessibleName(accessibleName);
    panel->setTextFormat(Qt::PlainText);
    panel->setMinimumWidth(panel->fontMetrics().averageCharWidth() * 16);
    panel->setContentsMargins(6, 0, 6, 0);
    bar->addWidget(panel, stretch);
    return panel;
}

// Only what differs is written: this runs ten times a second.
void write(QLabel* panel, const char* text) {
    if (panel->text() != QLatin1StringView(text)) panel->setText(text);
}

}  // namespace

FrameState::FrameState(QStatusBar* sbrMain)
    : UserName(addPanel(sbrMain, "UserName", "Current user", 1)),
      EditMode(addPanel(sbrMain, "EditMode", "Edit mode", 0)),
      Status(addPanel(sbrMain, "Status", "Status", 0)) {}

void FrameState::setUserName(const QString& caption) { UserName->setText(caption); }

void FrameState::mirror(const QObject* child) {
    if (!child) return;
    const QVariant addMode = child->property("mblnAddmode");
    if (!addMode.isValid()) return;
    write(EditMode, addMode.toBool() ? "New" : "Edit");
    const QVariant updated = child->property("mblnUpdated");
    if (updated.isValid()) write(Status, updated.toBool() ? editing : upToDate);
}

void FrameState::nothingIsEdited() {
    if (Status->text() == editing) write(Status, upToDate);
}
