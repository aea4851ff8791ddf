#pragma once
#include "platform/ui/screen_registry.h"

// Shows the screen that a person asked for; for one that this version lacks, a box says so by this name.
void openChosenScreen(const QString& screen, const ScreenArguments& arguments, const QString& name);

// Shows a screen that opens by itself; nothing where this version lacks it.
void openIfKnown(const QString& screen);

// The list of what is to be ordered, over the empty frame only, and only when something stands on it.
void remindOfReorder();

// Opens a file of the program's folder with the desktop. A box when it is not there, or nothing opens it.
void openProgramFile(const QString& fileName);

// Opens a mail message to the support address: the one line of "Support.ini" beside the program.
void contactSupport();
