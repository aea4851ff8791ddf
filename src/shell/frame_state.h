#pragma once
class QLabel;
class QObject;
class QStatusBar;
class QString;

// The status bar of the main window: who works, and what the active child does.
class FrameState {
  public:
    explicit FrameState(QStatusBar* sbrMain);
    void setUserName(const QString& caption);
    // Shows the flags mblnAddmode and mblnUpdated of the child. Without a child, or for one without these
    // flags, the panels keep their text.
    void mirror(const QObject* child);
    // Takes "Editing..." back: the screen that was edited has gone.
    void nothingIsEdited();

  private:
    QLabel* UserName;
    QLabel* EditMode;
    QLabel* Status;
};
