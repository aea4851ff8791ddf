#pragma once
#include "masters_fixture.h"
#include "platform/ui/child_screen.h"
#include "support/box_script.h"
#include "support/screen_driver.h"

#include <QPointer>

class DataGrid;

// A screen of the masters, driven by keys and by the commands of the frame.
class ScreenTest : public MastersTest {
  protected:
    void SetUp() override;
    void TearDown() override;

    void open(const QString& name);
    static ChildScreen* popup(const QString& name);  // an open one, or null
    void command(const char* name);                  // as the frame calls it, by name
    static void type(const QString& keys);           // \r is Enter, \t is Tab

    DataGrid* grid() const;
    QString text(const QString& name) const { return person::read(screen, name); }
    void set(const QString& name, const QString& text);  // not by keys
    void search(const QString& category, const QString& first, const QString& second = {});
    QString countText() const;
    QStringList enabledFields() const;  // of the record half
    bool addMode() const { return screen->property("mblnAddmode").toBool(); }
    bool updated() const { return screen->property("mblnUpdated").toBool(); }

    QPointer<ChildScreen> screen;
    BoxScript boxes;
};
