#include "demo/day_hand.h"

#include "foundation/session.h"
#include "foundation/shared_routines.h"
#include "platform/ui/data_grid.h"
#include "platform/ui/file_dialogs.h"
#include "platform/ui/screen_registry.h"
#include "support/program_driver.h"

#include <QDir>
#include <QFileInfo>
#include <QTemporaryDir>

DayHand::DayHand(const QString& folder, Say say)
    : folder_(folder), say_(std::move(say)), boxes_([this](const QString& line) { say_(line); }) {}

void DayHand::act(const QList<DayBoxes::Expected>& boxes, const std::function<void()>& action) {
    boxes_.expect(boxes);
    action();
    const QString fault = boxes_.settle();
    if (!fault.isEmpty()) throw DayFault(fault);
}

void DayHand::require(bool happened, const QString& fault) {
    if (!happened) throw DayFault(fault);
}

QWidget* DayHand::openEntry(const QString& menuItem, const QString& journal, const QString& entry) {
    QWidget* screen = nullptr;
    act({}, [&] {
        person::choose(menuItem);
        person::screen(journal);
        picture(journal);
        person::press(Qt::Key_N, Qt::ControlModifier);
        screen = person::screen(entry);
    });
    return screen;
}

void DayHand::chooseContact(QWidget* entry, const QString& contact) {
    act({}, [&] {
        person::fill(entry, "cboCustomer", contact);
        person::press(Qt::Key_Return);
        pick(person::screen("frmContactFound"), "ContactName", contact);
    });
    require(person::read(entry, "cboCustomer") == contact,
            QString("the pick left \"%1\" as the contact").arg(person::read(entry, "cboCustomer")));
}

void DayHand::pick(QWidget* picker, const QString& column, const QString& value) {
    require(person::walkToRow(person::find<DataGrid>(picker, "dbgSearch"), column, value),
            QString("the picker does not list \"%1\"").arg(value));
    const QString name = picker->objectName();
    picture(name);
    person::press(Qt::Key_Return);
    person::waitFor([&] { return !person::isOpen(name); }, name + " to close");
}

void DayHand::closeDialog(const QString& name) {
    act({}, [&] {
        person::press(Qt::Key_Escape);
        person::waitFor([&] { return !person::isOpen(name); }, name + " to close");
    });
}

QString DayHand::save(QWidget* entry, const QList<DayPaper>& papers, bool prints, const QString& saved) {
    const QString number = person::read(entry, "txtCode");
    picture(entry->objectName());
    QList<DayBoxes::Expected> boxes;
    for (const DayPaper& paper : papers)
        boxes += {{}, paper.question, prints ? BoxAnswer::Yes : BoxAnswer::No, !prints};
    boxes += {"Saved!", saved};
    act(boxes, [] { person::press(Qt::Key_S, Qt::ControlModifier); });
    const DayPaper& first = papers.first();
    require(RecordFound(StoreConnection(), first.table, first.key, number), number + " is not in the books");
    say_(QString("    %1 saved").arg(number));
    if (prints)
        for (auto paper = papers.crbegin(); paper != papers.crend(); ++paper) savePaper(*paper, number);
    return number;
}

// The paper stands in front, is saved as a PDF, and is tagged in the books.
void DayHand::savePaper(const DayPaper& paper, const QString& number) {
    const auto isTagged = [&](const char* flag) {
        return FlagFieldSet(StoreConnection(), paper.table, paper.key, number, flag);
    };
    const QTemporaryDir passing;
    const QString file = QDir(folder_.isEmpty() ? passing.path() : folder_)
                             .filePath(QString("%1 %2.pdf").arg(paper.preview, number));
    desk::setDoors({.saveFile = [file](const QString&) { return file; }});
    act({}, [&] {
        person::screen(paper.preview);
        person::waitFor([&] { return isTagged("Printed"); }, "the paper to be tagged");
        picture(paper.preview);
        person::press(Qt::Key_S, Qt::ControlModifier);
        person::press(Qt::Key_Escape);
        person::waitFor([&] { return !person::isOpen(paper.preview); }, "the paper to close");
    });
    desk::setDoors({});
    require(QFileInfo(file).size() > 0, file + " was not written");
    require(isTagged("RecordLock"), number + " can still be changed");
    say_(QString("    %1 printed").arg(number));
}

void DayHand::closeScreens() {
    act({}, [] {
        while (!ScreenRegistry::instance().openScreens().isEmpty()) {
            const qsizetype before = ScreenRegistry::instance().openScreens().size();
            person::press(Qt::Key_W, Qt::ControlModifier);
            person::waitFor([&] { return ScreenRegistry::instance().openScreens().size() < before; },
                            "Ctrl+W to close a screen");
        }
    });
}

void DayHand::picture(const QString& name) {
    if (folder_.isEmpty()) return;
    const QString file = QString("%1 %2.png").arg(++pictureNumber_, 3, 10, QChar('0')).arg(name);
    if (!person::picture().save(QDir(folder_).filePath(file))) say_("    no picture: " + file);
}
