#pragma once
#include "documents/document_controls.h"
#include "documents/document_head.h"
#include "documents/line_list.h"
#include "platform/progress.h"

// The entry screen of a document. Its journal opens it for a new one, or for an existing one whose RecordLock
// it has taken; the screen holds the lock and clears it when it leaves the document. After a save it goes on
// with a new one. A kind of document derives from it and brings its own fields, its lines and its rules.
class DocumentEntry : public RecordScreen {
    Q_OBJECT
    Q_PROPERTY(QString mstrPrimary MEMBER mstrPrimary)
  public:
    // The words outlive the screen.
    explicit DocumentEntry(const DocumentScreen& words);

    QString mstrPrimary;  // of the document being changed

    bool receive(const ScreenArguments& arguments) override;
    bool queryUnload() override;

  public slots:
    void NewRecord();
    bool SaveRecord();  // false when the save was refused
    // Shows the document as it is stored by now. What was typed goes, after a question.
    void RefreshRecord();
    bool CheckContact();
    void RecomputeTotal();

  protected:
    // The fields of its own, for a new document. The common ones and the lists are empty already.
    virtual void clearDocument() {}
    // Shows the document mstrPrimary; what it throws ends in a box.
    virtual void loadDocument() = 0;
    // Checks and saves what is on the screen. Done or a Fault, never a Question.
    virtual Outcome saveDocument(Progress& progress) = 0;
    // cmdAdd and cmdEdit of lvwItems.
    virtual void startLine() = 0;
    virtual void changeLine() = 0;
    // Runs when lines came or went and when a line popup is closed, with count and total up to date.
    virtual void linesChanged() {}
    virtual void showContact(const ContactFigures& figures);
    void unloading() override;

    // The lines of lvwItems, and of any further list: their popups hold the screen.
    void setLines(LineList& lines);
    void addList(LineList& lines);
    // True when lines may be entered for the contact; else tells why not.
    bool lineReady(const DocumentScreen::ContactMissing& missing);
    // True, after its message, while a line popup is open.
    bool popupHolds();

    DocumentHead head() const;
    void showHead(const DocumentHead& document, const StoredHead& stored);

    DocumentControls ui;

  private:
    void connectHead();
    void connectDirtying();
    void connectList();

    void startNew();
    void openDocument(const QString& key);
    void showDocument();
    void showNoContact() { showContact({}); }
    void findContact();
    void takeContact(const QString& name, const QString& contactId);
    void removeLine();
    void finishSave();
    QList<QPointer<ChildScreen>> offerPapers();
    bool leavesDocument();
    void releaseLock();

    const DocumentScreen& words_;
    LineList* lines_ = nullptr;  // of lvwItems
    QList<LineList*> lists_;
    HeldLock held_;  // of the document whose RecordLock is ours
    StoredState loaded_;
    bool canPrint_ = false;
};
