#include "journeys/journey.h"

#include "platform/ui/combo_box.h"
#include "platform/ui/screen_registry.h"
#include "platform/ui/text_box.h"
#include "support/screen_tour.h"

namespace {

// What clerks paste, and what those paste who want to know.
const QStringList& hostileTexts() {
    const QString joined =
        "O'Brien|''|'; DROP TABLE tblItemMaster; --|\" OR \"\"=\"|"
        "100%|%|_|a_b%c|\\|C:\\temp\\new.txt|[a-z]|*?#|?|"
        ":name @p1 $1 ?1|<b>bold</b>|<img src=x onerror=alert(1)>|"
        "&amp; & && &File|Ñandú señor|straße ß|İstanbul ı|"
        "日本語の品名|😀🧾|👨‍👩‍👧|"
        "مرحبا بالعالم|\u202Eabc\u202C|e\u0301 o\u0308|"
        "zero\u200Bwidth|  blanks around  |\u00A0hard blanks\u00A0|"
        "tab\tinside|line\nbreak";
    static const QStringList texts = joined.split('|') + QStringList{QString(100000, u'W')};
    return texts;
}

// Pastes over what the field holds. It then holds the whole text, or what it held, and a box said so.
void paste(QWidget* screen, const QString& control, const QString& text, const QList<Box>& shown) {
    person::goTo(screen, control);
    person::press(Qt::Key_A, Qt::ControlModifier);
    const QString before = person::read(screen, control);
    const qsizetype told = shown.size();
    person::paste(text);
    const QString held = person::read(screen, control);
    if (held == text) return;
    EXPECT_EQ(held, before) << "cut " << qPrintable(text.left(40));
    EXPECT_GT(shown.size(), told) << "refused in silence " << qPrintable(text.left(40));
}

QStringList textFields(QWidget* screen) {
    QStringList names;
    for (const TextBox* box : screen->findChildren<TextBox*>())
        if (box->isVisible() && box->isEnabled() && !box->isReadOnly() && !box->objectName().isEmpty() &&
            box->focusPolicy() != Qt::NoFocus && !qobject_cast<QComboBox*>(box->parentWidget()))
            names += box->objectName();
    for (const ComboBox* combo : screen->findChildren<ComboBox*>())
        if (combo->isVisible() && combo->isEnabled() && combo->isEditable()) names += combo->objectName();
    return names;
}

// In every field of every screen: held whole or refused with a box, and leaving it brings no harm.
TEST_F(Journey, HostileTextsAreHeldWholeByEveryField) {
    play("log in ADMIN admin");
    BoxScript boxes;
    boxes.record([](const Box& box) {
        return box.buttons == BoxButtons::YesNoCancel ? BoxAnswer::No : defaultAnswer(box);
    });
    int fields = 0;
    for (const QString& name : ScreenRegistry::instance().names()) {
        if (name == "frmForUpload") continue;  // nothing waits, and it takes no text
        QWidget* screen = openRegistered(name);
        person::choose("mnuRecordItem_0");
        const QStringList open = ScreenRegistry::instance().opened(name) ? textFields(screen) : QStringList();
        for (const QString& field : open) {
            const QString stood = person::read(screen, field);
            for (const QString& hostile : hostileTexts()) {
                SCOPED_TRACE(qPrintable(name + "." + field));
                paste(screen, field, hostile, boxes.shown());
                ++fields;
            }
            // A date that is none would not let go of the focus.
            paste(screen, field, stood, boxes.shown());
        }
        closeOpenScreens();
    }
    EXPECT_GT(fields, 32 * 30);
    EXPECT_EQ(itemFigure("SellingPrice"), "10.00");
}

}  // namespace
