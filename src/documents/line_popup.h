#pragma once
#include "documents/line_check.h"
#include "documents/line_owner.h"
#include "platform/ui/child_screen.h"

class GridPicker;
class QHBoxLayout;
class QPushButton;

// What line popups differ in, apart from their fields.
struct LineHabits {
    bool staysOpen = true;  // OK clears the fields for the next line; else it closes the popup
    bool keepsLine = true;  // Close during a change writes the line back as its fields stand; else it is gone
};

// A popup that adds a line to a document or changes one. A line under change has left the list, so the popup
// keeps the front until it is closed with its own button. Derive from LinePopupOf, which knows the line.
class LinePopup : public ChildScreen {
    Q_OBJECT
  public:
    LinePopup(const QString& name, const QString& caption, const LineHabits& habits);

    // Sets the popup up for a line to add.
    void startLine();
    // Goes without writing a line back: its document is no longer there.
    void abandon();
    void comeForward();
    // The popup's message to who goes elsewhere while it is open.
    void holdFront();

    bool mblnAddmode = true;
    bool WatchFocus = true;   // a loss of the front is refused
    bool SkipResave = false;  // closing does not write the line back

    bool queryUnload() override;

  protected:
    // Empties the fields for a line to add and puts the focus on the first.
    virtual void clearFields() = 0;
    // Brings what was typed into shape and checks it, with the answers to the questions asked before.
    virtual LineCheck checkTyped(const Answers& answers) = 0;
    virtual void addTyped() = 0;
    virtual void putBack() = 0;

    void activated() override;
    void deactivated() override;
    void unloading() override;
    void showEvent(QShowEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

    // cmdSave and cmdCancel at the right end.
    QHBoxLayout* buttons() const;
    // Presses OK, as Enter in the last field does.
    void pressSave();
    // Shows a fault. The fields that the focus passes on its way to the one at fault have nothing to say.
    void tell(const Fault& fault);
    bool isTelling() const { return telling_; }
    bool isClosing() const { return closing_; }
    // Opens a picker, unless one is open; the front is not watched until it has gone. The opener may give
    // null.
    void openPicker(const std::function<GridPicker*()>& open);

    QPushButton* cmdSave;
    QPushButton* cmdCancel;

  private:
    enum class SaveResult { Added, Refused, Failed };  // failed: the store or the figures
    SaveResult save();
    SaveResult refuse(const Fault& fault, bool closes);
    void leaveFieldAndSave();
    void cancel();
    void closePopup();

    const LineHabits habits_;
    QPointer<GridPicker> picker_;
    bool telling_ = false;
    bool closing_ = false;  // by its own button, not by the control box
};

// The popup of one kind of line. A kind brings its fields, clearFields, checkTyped and these two.
template <class Line>
class LinePopupOf : public LinePopup {
  public:
    LinePopupOf(LineOwner<Line>& lines, const QString& name, const QString& caption,
                const LineHabits& habits = {})
        : LinePopup(name, caption, habits), lines_(lines) {}

    // Sets the popup up for this line, which has left the list at this row.
    void changeLine(const Line& line, int row) {
        mblnAddmode = false;
        changed_ = line;
        row_ = row;
        showLine(line);
    }

  protected:
    virtual void showLine(const Line& line) = 0;
    // What was typed, once checkTyped is Done with it.
    virtual Line typedLine() const = 0;
    const LineOwner<Line>& lines() const { return lines_; }

  private:
    // A line that was changed comes back to its place.
    void addTyped() override {
        if (mblnAddmode)
            lines_.addLine(typedLine());
        else
            lines_.insertLine(row_, typedLine());
    }
    void putBack() override { lines_.insertLine(row_, changed_); }

    LineOwner<Line>& lines_;
    Line changed_;
    int row_ = 0;
};
