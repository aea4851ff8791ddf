#include "masters_screen_fixture.h"

#include "masters/register.h"
#include "platform/ui/combo_box.h"
#include "platform/ui/data_grid.h"
#include "platform/ui/screen_registry.h"
#include "support/screen_tour.h"

#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>

void ScreenTest::SetUp() {
    MastersTest::SetUp();
    registerMasterScreens();
}

void ScreenTest::TearDown() {
    closeOpenScreens();
    MastersTest::TearDown();
}

void ScreenTest::open(const QString& name) {
    screen = ScreenRegistry::instance().open(name);
    person::look(screen);
}

ChildScreen* ScreenTest::popup(const QString& name) { return ScreenRegistry::instance().opened(name); }

void ScreenTest::command(const char* name) {
    ASSERT_TRUE(QMetaObject::invokeMethod(screen, name)) << name;
    person::settle();
}

void ScreenTest::type(const QString& keys) {
    for (const QChar key : keys)
        if (key == u'\r')
            person::press(Qt::Key_Return);
        else if (key == u'\t')
            person::press(Qt::Key_Tab);
        else
            person::type(key);
}

DataGrid* ScreenTest::grid() const { return person::find<DataGrid>(screen, "dbgMyGrid"); }

void ScreenTest::set(const QString& name, const QString& text) {
    if (auto* list = screen->findChild<ComboBox*>(name))
        list->setText(text);
    else
        person::find<QLineEdit>(screen, name)->setText(text);
}

void ScreenTest::search(const QString& category, const QString& first, const QString& second) {
    set("cboSearchBy", category);
    set("txtSearch", first);
    if (!second.isNull()) set("txtSecondSearch", second);
    person::click(screen, "cmdSearch");
}

QString ScreenTest::countText() const { return person::find<QGroupBox>(screen, "fraCount")->title(); }

QStringList ScreenTest::enabledFields() const {
    QStringList names;
    for (const QWidget* field : person::control(screen, "fraRecord")->findChildren<QWidget*>())
        if (!field->objectName().isEmpty() && field->isEnabled() && !qobject_cast<const QLabel*>(field))
            names << field->objectName();
    return names;
}
