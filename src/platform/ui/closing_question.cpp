#include "platform/ui/closing_question.h"

#include "platform/ui/boxes.h"
#include "platform/ui/child_screen.h"

static Box closingQuestion(bool adds) {
    const char* title = adds ? "Confirm Add Record!" : "Confirm Update Record!";
    const char* text = adds ? "Add New Record to Existing File then Exit?"
                            : "Current Record has been Updated.  Save Changes then Exit?";
    return {title, text, BoxIcon::Question, BoxButtons::YesNoCancel, BoxAnswer::Yes};
}

bool settleChanges(const RecordScreen& screen, const std::function<bool()>& save) {
    if (!screen.mblnUpdated) return true;
    const BoxAnswer answer = showBox(closingQuestion(screen.mblnAddmode));
    return answer == BoxAnswer::Yes ? save() : answer == BoxAnswer::No;
}
