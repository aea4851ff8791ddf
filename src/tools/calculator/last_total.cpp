#include "tools/calculator/last_total.h"

#include "platform/ui/text_box.h"
#include "tools/calculator/adding_machine.h"

#include <QApplication>
#include <QInputMethodEvent>
#include <QKeyEvent>

namespace {
bool isLastTotalKey(const QEvent* event) {
    if (event->type() != QEvent::KeyPress) return false;
    const auto* key = static_cast<const QKeyEvent*>(event);
    return key->key() == Qt::Key_T && key->modifiers() == (Qt::ControlModifier | Qt::ShiftModifier);
}

// Amounts stand at the right of their boxes.
bool isAmountField(const TextBox& box) {
    return (box.alignment() & Qt::AlignRight) && box.isEnabled() && !box.isReadOnly();
}

// Goes in as what a person types goes in: whole, or refused with a beep.
void takeTotal(TextBox& box) {
    QString total = deskTape().lastTotal;
    if (total.endsWith(u'.')) total.chop(1);
    if (total.isEmpty()) return QApplication::beep();
    box.selectAll();
    QInputMethodEvent typed;
    typed.setCommitString(total);
    QApplication::sendEvent(&box, &typed);
}

class LastTotalKey : public QObject {
  public:
    using QObject::QObject;
    bool eventFilter(QObject* target, QEvent* event) override {
        if (!isLastTotalKey(event)) return false;
        auto* box = qobject_cast<TextBox*>(target);
        if (!box || !isAmountField(*box)) return false;
        takeTotal(*box);
        return true;
    }
};
}  // namespace

void installLastTotalKey() {
    static QObject* filter = nullptr;
    if (filter) return;
    filter = new LastTotalKey(qApp);
    qApp->installEventFilter(filter);
}
