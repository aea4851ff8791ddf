#pragma once
#include "masters_fixture.h"
#include "platform/ui/child_screen.h"
#include "support/box_script.h"

#include <QPointer>

class ComboBox;
class DataGrid;
class QCheckBox;
class TextBox;

// A screen of the masters, driven by keys and by the commands of the frame. Every box that comes up must be
// taken by the test; one that asks must have been answered before.
class ScreenTest : public MastersTest {
  protected:
    void SetUp() override;
    void TearDown() override;

    ChildScreen* open(const QString& name);
    ChildScreen* popup(const QString& name) const;  // an open one, or null
    void command(const char* name);                 // as the frame calls it, by name

    TextBox* box(const QString& name) const;
    ComboBox* combo(const QString& name) const;
    QCheckBox* flag(const QString& name) const;
    DataGrid* grid() const;
    QString text(const QString& name) const;
    void set(const QString& name, const QString& text);
    void press(const QString& button);
    void pick(const QString& combo, const QString& entry);
    QString countText() const;
    QString focused() const;
    QStringList enabledFields() const;  // of the record half
    bool addMode() const { return screen->property("mblnAddmode").toBool(); }
    bool updated() const { return screen->property("mblnUpdated").toBool(); }

    void type(const QString& keys);  // into what has the focus; \r is Enter, \t is Tab
    void keyTo(QWidget* widget, Qt::Key key);
    void enterInGrid();
    void clickHeader(int column);

    void answer(BoxAnswer next) { answers_ << next; }
    QStringList takeBoxes();  // "title|text" of each since the last take

    QPointer<ChildScreen> screen;

  private:
    BoxScript boxes_;
    qsizetype taken_ = 0;
    QList<BoxAnswer> answers_;
};
