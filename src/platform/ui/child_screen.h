#pragma once
#include <QPointer>
#include <QShowEvent>
#include <QWidget>

// What a screen is opened with.
struct ScreenArguments {
    QString kind;         // "PO", "R", ...
    QString key;          // of the record to show; empty: a new one, or none
    QString caption;      // empty: the screen's own
    QString choice = {};  // the option button that is set: "optSummary"; empty: the screen's own
    bool operator==(const ScreenArguments&) const = default;
};

// A working screen: a child of the main window, a single instance, with late-bound commands: slots or
// Q_INVOKABLEs named as the frame calls them (NewRecord, EditRecord, SaveRecord, ...). Enter moves to the
// next field, Esc unloads.
//
// What a screen changes in the frame are properties that the frame reads while the screen is active:
// deleteAllowed (Delete of the Record menu) and hidesReportMenu.
class ChildScreen : public QWidget {
    Q_OBJECT
    Q_PROPERTY(bool deleteAllowed READ deleteAllowed)
    Q_PROPERTY(bool hidesReportMenu READ hidesReportMenu)
  public:
    // Where the frame puts it: in the middle, or at its top left and as large as it leaves room for.
    enum Placement { Centred, FillsFrame };
    // How it is held: a child window of the frame, or a popup of its own window over the frame.
    enum Kind { Child, Popup };

    ChildScreen(const QString& name, const QString& caption, Placement placement = Centred,
                Kind kind = Child);

    Placement placement() const { return placement_; }
    Kind kind() const { return kind_; }
    // The screen that a person is at; the last one while a box, the frame or another program has the focus.
    static ChildScreen* front();
    // Of a popup: the screen that it was opened over, or null.
    ChildScreen* opener() const;
    // Shows a popup over the frame (null: a window of its own), for the screen that opened it.
    void openFrom(ChildScreen* opener, QWidget* frame);
    virtual bool deleteAllowed() const { return true; }
    virtual bool hidesReportMenu() const { return false; }

    // Takes what it is opened with. Called before it is shown, and again when an open one is asked for;
    // false refuses the new one (the closing question was answered with Cancel) and leaves it as it was.
    virtual bool receive(const ScreenArguments& arguments);
    // Closes the screen through its closing question. False when it stays.
    bool unload();
    // Asks the closing question now. True: an unload() that follows closes without asking again, until
    // stayOpen() takes that back.
    bool agreeToUnload();
    void stayOpen();
    bool hasUnloaded() const { return state_ == Unloaded; }
    // False keeps the screen open. Asked once for each attempt to close.
    virtual bool queryUnload() { return true; }
    // The screen came to the front, or left it. Deactivated means another part of this program came to the
    // front, not a box, a popup that this screen opened, or another program; activated means coming back from
    // there. They come at the next turn of the event loop, when the focus has settled.
    virtual void activated() {}
    virtual void deactivated() {}

  public slots:
    void CloseRecord() { unload(); }

  signals:
    void unloaded(ChildScreen* screen);

  protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void showEvent(QShowEvent* event) override;
    // Once, when it really closes.
    virtual void unloading() {}

  private:
    void leave();
    void placePopup(const QWidget* frame);

    Placement placement_;
    Kind kind_;
    enum { Open, Asking, Agreed, Unloaded } state_ = Open;
    QPointer<ChildScreen> opener_;
};

// A screen that keeps records: with the two flags that the frame's status bar reads by name.
class RecordScreen : public ChildScreen {
    Q_OBJECT
    Q_PROPERTY(bool mblnAddmode MEMBER mblnAddmode)
    Q_PROPERTY(bool mblnUpdated MEMBER mblnUpdated)
  public:
    using ChildScreen::ChildScreen;
    bool mblnAddmode = false;
    bool mblnUpdated = false;
};

// The next field, as Enter gives it.
void focusNextField(QWidget* screen);
