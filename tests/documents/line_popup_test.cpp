#include "documents/line_list.h"
#include "documents/number_entry.h"
#include "documents/order_books.h"
#include "platform/ui/boxes.h"
#include "platform/ui/screen_registry.h"
#include "support/box_script.h"
#include "support/screen_driver.h"

#include <QVBoxLayout>

using ::testing::ElementsAre;

namespace {
// A made-up line of one text, and its popup, which refuses "bad".
struct Note {
    QString text;
    QStringList texts() const { return {text}; }
    static Note fromTexts(const QStringList& texts) { return {texts.value(0)}; }
};

class NotePopup : public LinePopupOf<Note> {
  public:
    NotePopup(LineOwner<Note>& notes, const LineHabits& habits) : LinePopupOf(notes, "notes", "", habits) {
        auto* column = new QVBoxLayout(this);
        column->addWidget(txtNote = new TextBox("txtNote"));
        column->addLayout(buttons());
    }

  protected:
    void clearFields() override { txtNote->clear(); }
    void showLine(const Note& note) override { txtNote->setText(note.text); }
    LineCheck checkTyped(const Answers&) override {
        if (txtNote->text() == "bad") return {Fault{exclamation("Error!", "Bad."), "txtNote"}};
        if (lines().hasLine(txtNote->text())) return {Fault{exclamation("Error!", "Twice."), {}}, true};
        if (txtNote->text() == "broken") throw StoreError(StoreError::busy, "Held.");
        return {Done{}};
    }
    Note typedLine() const override { return {txtNote->text()}; }

  private:
    TextBox* txtNote;
};

class Notes : public OrderBooks {
  protected:
    void TearDown() override {
        notes.abandonPopup();
        person::settle();
        OrderBooks::TearDown();
    }
    // Opens the first of these lines for change, types over it and closes the popup by one of its buttons.
    std::vector<std::string> change(const LineHabits& habits, const QString& typed, const char* button) {
        notes.setAll({{"one"}, {"two"}});
        list->setCurrentRow(0);
        notes.changeLine([&] { return new NotePopup(notes, habits); });
        person::fill(popup(), "txtNote", typed);
        person::click(popup(), button);
        return texts();
    }
    ChildScreen* popup() { return ScreenRegistry::instance().opened("notes"); }
    std::vector<std::string> texts() {
        std::vector<std::string> all;
        for (const Note& note : notes.all()) all.push_back(note.text.toStdString());
        return all;
    }

    BoxScript boxes;
    RecordScreen screen{"screen", "Screen"};
    ListView* list = new ListView("lvwItems", {{"Note"}}, &screen);
    LinesOf<Note> notes{list, &screen};
};

TEST_F(Notes, UnderChangeComeBackOrGoByTheHabitsOfTheirPopup) {
    EXPECT_THAT(change({}, "three", "cmdCancel"), ElementsAre("three", "two"));
    EXPECT_THAT(change({.keepsLine = false}, "three", "cmdCancel"), ElementsAre("two"));
    EXPECT_FALSE(popup());
    EXPECT_THAT(change({.staysOpen = false}, "three", "cmdSave"), ElementsAre("three", "two"));
    EXPECT_FALSE(popup());
    EXPECT_TRUE(screen.mblnUpdated);
}

TEST_F(Notes, ThatAreRefusedAreLostAndThoseNotCheckedComeBack) {
    boxes.expect("Error!", "Bad.");
    EXPECT_THAT(change({}, "bad", "cmdCancel"), ElementsAre("two"));
    boxes.expect("Error...", "Held.");
    EXPECT_THAT(change({}, "broken", "cmdCancel"), ElementsAre("one", "two"));
    boxes.expect("Error!", "Twice.");
    EXPECT_THAT(change({}, "two", "cmdSave"), ElementsAre("two"));
    EXPECT_FALSE(popup()) << "there is nothing to mend";
}

TEST_F(Notes, HoldTheirScreenWhileThePopupIsOpen) {
    EXPECT_FALSE(notes.popupHolds());
    EXPECT_THAT(change({}, "three", "cmdSave"), ElementsAre("three", "two"));
    EXPECT_TRUE(popup()) << "for the next line";
    boxes.expect("Lost Focus!", "Please Click on Close Button to Exit!");
    EXPECT_TRUE(notes.popupHolds());
    boxes.expect("Please Don't Press X Button!");
    EXPECT_FALSE(popup()->unload());
}

using TakenNumber = OrderBooks;
TEST_F(TakenNumber, IsGoneWhenItIsRead) {
    const std::unique_ptr<NumberEntry> entry(NumberEntry::make(numbering::payment, "Increment"));
    QStringList shown;
    QObject::connect(entry.get(), &NumberEntry::composed, entry.get(),
                     [&](const QString& number) { shown += number; });
    entry->propose();
    entry->cmdIncrement->click();
    EXPECT_EQ(shown, QStringList({"1", "2"}));
    EXPECT_EQ(numbering::nextKey(store, numbering::payment), 3);
    EXPECT_EQ(entry->serial(), "") << "there is no counter to store at the save";
}
}  // namespace
