#include "journeys/journey.h"

#include "platform/parsing.h"
#include "platform/ui/combo_box.h"
#include "platform/ui/screen_registry.h"
#include "platform/ui/text_box.h"
#include "support/screen_tour.h"

#include <QCheckBox>

namespace {

// What clerks paste, and what those paste who want to know.
const QStringList& hostileTexts() {
    static const QStringList texts =
        QString(
            "O'Brien|''|'; DROP TABLE tblItemMaster; --|\" OR \"\"=\"|100%|%|_|a_b%c|\\|"
            "C:\\temp\\new.txt|[a-z]|*?#|?|:name @p1 $1 ?1|<b>bold</b>|"
            "<img src=x onerror=alert(1)>|&amp; & && &File|Ñandú señor|straße ß|İstanbul ı|"
            "日本語の品名|😀🧾|👨‍👩‍👧|مرحبا "
            "بالعالم|\u202Eabc\u202C|e\u0301 "
            "o\u0308|zero\u200Bwidth|"
            "  blanks around  |\u00A0hard blanks\u00A0|tab\tinside|line\nbreak")
            .split('|') +
        QStringList{QString(100000, u'W')};
    return texts;
}

struct StoredField {
    const char* control;
    const char* column;
    bool upper = false;
};

// A screen that stores what is typed: the fields that take any text, and how the rest of a record is filled.
struct StoringScreen {
    const char* name;
    const char* table;
    QList<StoredField> fields;
    std::function<void(QWidget* screen)> fillRest;
    bool oneRow = false;  // the screen has one record, always there
};

class HostileTexts : public Journey {
  protected:
    void SetUp() override {
        Journey::SetUp();
        play("log in ADMIN admin");
        boxes_.emplace();
        boxes_->record([](const Box& box) {
            return box.buttons == BoxButtons::YesNoCancel ? BoxAnswer::No : defaultAnswer(box);
        });
    }

    void TearDown() override {
        boxes_.reset();
        Journey::TearDown();
    }

    qsizetype boxesShown() const { return boxes_->shown().size(); }

    // Pastes over what the field holds. It then holds the whole text, or what it held, and a box said so.
    void paste(QWidget* screen, const QString& control, const QString& text) {
        person::goTo(screen, control);
        person::press(Qt::Key_A, Qt::ControlModifier);
        const QString before = person::read(screen, control);
        const qsizetype told = boxesShown();
        person::paste(text);
        const QString held = person::read(screen, control);
        if (held == text) return;
        EXPECT_EQ(held, before) << qPrintable(control) << " cut " << qPrintable(text.left(40));
        EXPECT_GT(boxesShown(), told)
            << qPrintable(control) << " refused in silence " << qPrintable(text.left(40));
    }

    qint64 rowsOf(const char* table) {
        return store().execute(QString("SELECT COUNT(*) AS n FROM %1").arg(table)).integer("n");
    }

    // True when the record was stored; otherwise a box refused it.
    bool storeAndCompare(const StoringScreen& row, const QString& hostile) {
        QWidget* screen = openRegistered(row.name);
        if (!row.oneRow) person::choose("mnuRecordItem_0");
        row.fillRest(screen);
        QStringList held;
        for (const StoredField& field : row.fields) {
            // Each told from the others, so that what is unique stays so.
            paste(screen, field.control, hostile + QString::number(held.size()));
            held += person::read(screen, field.control);
        }
        const qint64 before = rowsOf(row.table);
        const qsizetype told = boxesShown();
        person::press(Qt::Key_S, Qt::ControlModifier);
        if (!row.oneRow && rowsOf(row.table) == before) {
            EXPECT_GT(boxesShown(), told) << row.name << " stored nothing and said nothing";
            return false;
        }
        expectStored(row, held);
        return true;
    }

    void expectStored(const StoringScreen& row, const QStringList& held) {
        Recordset stored = store().execute(QString("SELECT * FROM %1").arg(row.table));
        stored.moveLast();
        for (qsizetype i = 0; i < row.fields.size(); ++i) {
            const QString typed = row.fields[i].upper ? held[i].toUpper() : held[i];
            EXPECT_EQ(stored.text(row.fields[i].column), trim(typed))
                << row.name << " " << row.fields[i].control;
        }
    }

    std::optional<BoxScript> boxes_;
};

const QList<StoringScreen>& storingScreens() {
    static const QList<StoringScreen> screens = {
        {"frmContacts",
         "tblContactMaster",
         {{"txtName", "ContactName"},
          {"txtAddress", "Address"},
          {"txtTelNo", "TelNo"},
          {"txtEmail", "eMail"},
          {"txtRemarks", "Remarks"}},
         [](QWidget* screen) { person::find<QCheckBox>(screen, "chkCustomer")->setChecked(true); }},
        {"frmItem",
         "tblItemMaster",
         {{"txtItemCode", "ItemCode"},
          {"txtDescription", "Description", true},
          {"txtLocator", "Locator", true},
          {"txtRemarks", "Remarks", true}},
         [](QWidget* screen) {
             person::fill(screen, "txtUnit", "PC");
             person::fill(screen, "txtSupplierCode", "Rizal Mill");
         }},
        {"frmUnitGrid", "tblUnitMaster", {{"txtUnit", "UnitCode", true}}, [](QWidget*) {}},
        {"frmCompanySetup",
         "tblSystemProfile",
         {{"txtCompanyName", "CompanyName"},
          {"txtCompanyAddress", "CompanyAddress"},
          {"txtCompanyEmail", "CompanyEmail"},
          {"txtTIN", "CompanyTIN"},
          {"txtPrepare", "Prepared"},
          {"txtApproved", "Approved"}},
         [](QWidget*) {},
         true},
    };
    return screens;
}

TEST_F(HostileTexts, AreStoredExactlyOrRefusedWithABox) {
    EXPECT_EQ(hostileTexts().size(), 32);
    for (const StoringScreen& row : storingScreens()) {
        int stored = 0;
        for (const QString& hostile : hostileTexts()) {
            SCOPED_TRACE(qPrintable(QString(row.name) + ": " + hostile.left(40)));
            stored += storeAndCompare(row, hostile);
        }
        closeOpenScreens();
        EXPECT_GT(stored, 20) << row.name << "\n" << qPrintable(boxes_->shownTexts().join('\n'));
    }
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
TEST_F(HostileTexts, AreHeldWholeByEveryField) {
    int fields = 0;
    for (const QString& name : ScreenRegistry::instance().names()) {
        if (name == "frmForUpload") continue;  // nothing waits, and it takes no text
        QWidget* screen = openRegistered(name);
        person::choose("mnuRecordItem_0");
        const QStringList open = ScreenRegistry::instance().opened(name) ? textFields(screen) : QStringList();
        for (const QString& field : open)
            for (const QString& hostile : hostileTexts()) {
                SCOPED_TRACE(qPrintable(name + "." + field));
                paste(screen, field, hostile);
                ++fields;
            }
        closeOpenScreens();
    }
    EXPECT_GT(fields, 32 * 30);
    EXPECT_EQ(itemFigure("SellingPrice"), "10.00");
}

}  // namespace
