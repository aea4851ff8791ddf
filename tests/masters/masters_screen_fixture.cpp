#include "masters_screen_fixture.h"

#include "masters/register.h"
#include "platform/ui/combo_box.h"
#include "platform/ui/data_grid.h"
#include "platform/ui/screen_registry.h"
#include "platform/ui/text_box.h"

#include <QApplication>
#include <QCheckBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QPushButton>
#include <QTest>

void ScreenTest::SetUp() {
    MastersTest::SetUp();
    registerMasterScreens();
    boxes_.record([this](const Box& box) {
        if (box.buttons == BoxButtons::Ok) return BoxAnswer::Ok;
        if (!answers_.isEmpty()) return answers_.takeFirst();
        ADD_FAILURE() << "nobody answers: " << qPrintable(box.text);
        return BoxAnswer::No;
    });
}

QStringList ScreenTest::takeBoxes() {
    QStringList texts;
    for (; taken_ < boxes_.shown().size(); ++taken_)
        texts << boxes_.shown().at(taken_).title + '|' + boxes_.shown().at(taken_).text;
    return texts;
}

void ScreenTest::TearDown() {
    EXPECT_EQ(takeBoxes(), QStringList()) << "boxes that the test did not expect";
    for (ChildScreen* open : ScreenRegistry::instance().openScreens()) open->unload();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    MastersTest::TearDown();
}

ChildScreen* ScreenTest::open(const QString& name) {
    ChildScreen* opened = ScreenRegistry::instance().open(name);
    if (!opened) throw std::runtime_error("no such screen");
    opened->activateWindow();
    EXPECT_TRUE(QTest::qWaitForWindowActive(opened));
    return opened;
}

ChildScreen* ScreenTest::popup(const QString& name) const {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    for (ChildScreen* open : ScreenRegistry::instance().openScreens())
        if (open->objectName() == name) return open;
    return nullptr;
}

void ScreenTest::command(const char* name) { ASSERT_TRUE(QMetaObject::invokeMethod(screen, name)) << name; }

TextBox* ScreenTest::box(const QString& name) const { return screen->findChild<TextBox*>(name); }

ComboBox* ScreenTest::combo(const QString& name) const { return screen->findChild<ComboBox*>(name); }

QCheckBox* ScreenTest::flag(const QString& name) const { return screen->findChild<QCheckBox*>(name); }

DataGrid* ScreenTest::grid() const { return screen->findChild<DataGrid*>("dbgMyGrid"); }

QString ScreenTest::text(const QString& name) const {
    if (const ComboBox* list = combo(name)) return list->text();
    return box(name)->text();
}

void ScreenTest::set(const QString& name, const QString& text) {
    if (ComboBox* list = combo(name))
        list->setText(text);
    else
        box(name)->setText(text);
}

void ScreenTest::press(const QString& button) { screen->findChild<QPushButton*>(button)->click(); }

void ScreenTest::pick(const QString& name, const QString& entry) {
    combo(name)->setText(entry);
    emit combo(name)->picked();
}

QString ScreenTest::countText() const { return screen->findChild<QGroupBox*>("fraCount")->title(); }

QString ScreenTest::focused() const {
    const QWidget* widget = QApplication::focusWidget();
    while (widget && widget->objectName().isEmpty()) widget = widget->parentWidget();
    return widget ? widget->objectName() : QString();
}

QStringList ScreenTest::enabledFields() const {
    QStringList names;
    for (const QWidget* field : screen->findChild<QGroupBox*>("fraRecord")->findChildren<QWidget*>())
        if (!field->objectName().isEmpty() && field->isEnabled() && !qobject_cast<const QLabel*>(field))
            names << field->objectName();
    return names;
}

void ScreenTest::type(const QString& keys) {
    for (const QChar key : keys) {
        QWidget* target = QApplication::focusWidget();
        ASSERT_TRUE(target);
        if (key == u'\r')
            QTest::keyClick(target, Qt::Key_Return);
        else if (key == u'\t')
            QTest::keyClick(target, Qt::Key_Tab);
        else
            QTest::keyClicks(target, key);
    }
}

void ScreenTest::keyTo(QWidget* widget, Qt::Key key) {
    ASSERT_TRUE(widget);
    QTest::keyClick(widget, key);
}

void ScreenTest::enterInGrid() { keyTo(grid(), Qt::Key_Return); }

void ScreenTest::clickHeader(int column) {
    const QHeaderView* header = grid()->horizontalHeader();
    const int x = header->sectionViewportPosition(column) + header->sectionSize(column) / 2;
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, {x, header->height() / 2});
}
