#include "masters/unit_field.h"

#include "foundation/session.h"
#include "masters/unit_master.h"
#include "platform/ui/boxes.h"
#include "platform/ui/text_box.h"

namespace {
QString completed(const QString& typed) {
    Connection& store = StoreConnection();
    if (const auto code = MatchUnitCode(store, typed)) return *code;
    return askYes(unknownUnit()) ? AddUnitCode(store, typed) : QString();
}
}  // namespace

void completeUnit(TextBox* box) {
    // The question may outlive the screen.
    const QPointer<TextBox> field(box);
    guarded([&] {
        const QString unit = completed(box->text());
        if (field && field->text() != unit) field->setText(unit);
    });
}
