#pragma once
#include <QSize>
#include <functional>

// The way into the program.

// Opens the store in the program's folder; one that was not closed in peace is looked through first, with the
// progress box. A failure is shown ("Connection Error") and gives false.
bool OpenDatabase();

// The program's entry: opens the store, reads the report printer and shows the login. False when the store
// cannot be opened (both boxes have been shown): the process has nothing to run for.
bool Main();

// Shows the login. When that fails, a box says why and the process ends.
void showLogin();

// Ends the process as soon as control is back in the event loop, whatever windows are open.
void endProcess();

// From the closing of the login to the opening of the main window, and back: the process lives on while
// neither is open.
class BetweenWindows {
  public:
    BetweenWindows();
    ~BetweenWindows();
    BetweenWindows(const BetweenWindows&) = delete;
    BetweenWindows& operator=(const BetweenWindows&) = delete;
};

// True for a display of at least 1024 by 768.
bool CheckResolution();

// Test doors: what ends the process, and the display's size. Empty functions restore the real ones.
void setEndProcessDoor(std::function<void()> door);
void setScreenSizeDoor(std::function<QSize()> door);
