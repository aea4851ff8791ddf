#include "reports/frame/print_fields.h"

#include "platform/ui/child_screen.h"
#include "platform/ui/screen_registry.h"
#include "support/box_script.h"
#include "support/program_driver.h"
#include "support/screen_tour.h"
#include "support/test_store.h"

#include <QLabel>
#include <QVBoxLayout>

namespace {
const QList<PrintField>& asked() {
    static const QList<PrintField> fields{
        {.name = "cboCustomer",
         .caption = "Customer :",
         .typed = &PrintRequest::contact,
         .picker = PickedFrom::ContactsOfKind,
         .search = "cmdSearch",
         .whenEmpty = "All Contacts",
         .captionOfSupplier = "Supplier :"},
        {.name = "cboItem",
         .caption = "Item :",
         .typed = &PrintRequest::item,
         .picker = PickedFrom::ItemCodes},
        {.name = "txtDescription",
         .caption = "Description :",
         .typed = &PrintRequest::description,
         .picker = PickedFrom::ItemDescriptions,
         .search = "cmdSearchDescription"},
        {.name = "txtDate", .caption = "Cut-off :", .shown = [] { return QString("today"); }}};
    return fields;
}

class Fields : public SessionTest {
  protected:
    void SetUp() override {
        SessionTest::SetUp();
        addContact(store(), {.id = "C1", .name = "Ana Reyes", .supplier = false});
        addContact(store(), {.id = "C2", .name = "Ana Supply", .customer = false});
        addItem(store(), {.code = "N1", .description = "Nail"});
        addItem(store(), {.code = "N2", .description = "Nail"});
        addItem(store(), {.code = "W1", .description = "Wire"});
        screen_ = new ChildScreen("frmAsking", "Asking");
        (new QVBoxLayout(screen_))->addWidget(fields_ = new PrintFields(asked()));
        ScreenRegistry::instance().show(screen_);
        person::look(screen_);
    }
    void TearDown() override {
        closeOpenScreens();
        SessionTest::TearDown();
    }
    QString request() {
        PrintRequest request;
        fields_->addTo(request);
        return QStringList{request.contact, request.item, request.description}.join('|');
    }
    BoxScript boxes_;
    ChildScreen* screen_ = nullptr;
    PrintFields* fields_ = nullptr;
};

// What is typed into an empty field, with \r for Enter and \t for Tab; a picker that has come up takes an
// Enter.
TEST_F(Fields, OfOneRecordBelongTogether) {
    const struct {
        const char *kind, *field, *keys, *request, *focus;
    } steps[] = {{"P", "cboCustomer", "ana\r\r", "Ana Supply||", "cboItem"},
                 {"R", "cboCustomer", "ana\r\r", "Ana Reyes||", "cboItem"},
                 {"R", "cboCustomer", "\r", "||", "cboItem"},
                 {"R", "cboItem", "w1", "|W1|Wire", "cboItem"},
                 {"R", "cboItem", "n2\r", "|N2|Nail", "txtDescription"},
                 {"R", "txtDescription", "nail", "|N1|Nail", "txtDescription"},
                 {"R", "cboItem", "gone\t", "|gone|", "txtDescription"},
                 {"R", "cboItem", " \r\r", "|N1|Nail", "txtDescription"},
                 {"R", "txtDescription", "wi\r\r", "|W1|Wire", "cboCustomer"}};
    for (const auto& step : steps) {
        fields_->setKind(step.kind);
        person::fill(screen_, step.field, "");
        for (const char key : QByteArray(step.keys)) {
            for (const char* picker : {"frmContactFound", "frmFound"})
                if (person::isOpen(picker)) person::look(person::screen(picker));
            if (key == '\r' || key == '\t')
                person::press(key == '\t' ? Qt::Key_Tab : Qt::Key_Return);
            else
                person::type(QString(QChar(key)));
        }
        EXPECT_EQ(request(), step.request) << step.keys;
        EXPECT_EQ(person::focusName(), step.focus) << step.keys;
        EXPECT_EQ(screen_->findChild<QLabel*>()->text(), *step.kind == 'P' ? "Supplier :" : "Customer :");
    }
    EXPECT_EQ(person::read(screen_, "txtDate"), "today");
}
}  // namespace
