#pragma once
#include <QString>
#include <variant>
#include <vector>

// Every menu of the main window as a table: what stands in it, and what a click does.

// Opens a screen by its name.
struct OpenScreen {
    const char* screen;
    const char* kind = "";
    const char* caption = "";
    const char* choice = "";
    bool restsOnCosting = false;  // asks first while rows are waiting for the end of day
};

// Calls a routine by its name on the active child.
struct RecordCommand {
    const char* routine;
};

// What the frame does itself.
enum class FrameCommand {
    RecomputeBalances,
    SetUpPrinter,
    LogOff,
    Exit,
    Cut,
    Copy,
    Paste,
    SelectAll,
    ToggleToolbar,
    ToggleStatusBar,
    RepairReportAnalyzer,
    TileHorizontally,
    TileVertically,
    Cascade,
    ArrangeIcons,
    CloseAll,
    Help,
    ContactSupport,
};

using MenuAction = std::variant<std::monostate, OpenScreen, RecordCommand, FrameCommand>;

struct MenuItem {
    int index;
    const char* caption;  // "-": a separator
    MenuAction action = {};
    const char* shortcut = "";
    int right = 0;        // the code of the right that it takes; 0: everybody's
    bool hidden = false;  // at start
    bool checked = false;
};

struct MenuTable {
    const char* name;     // "mnuFile"
    const char* items;    // the name of its items: "mnuFileItem"
    const char* caption;  // empty: a submenu, with the caption of the item that opens it
    int right = 0;
    const char* openedBy = "";  // of a submenu: the name of that item
    std::vector<MenuItem> rows = {};
};

const std::vector<MenuTable>& menuCatalogue();

// The rows that have no place of their own: an item that is given such a caption does its action.
const std::vector<MenuItem>& spareRows();

// The caption that item 2 of Administration is given for who may unlock records.
inline constexpr const char* recordLockCaption = "&Transaction Record Lock...";
inline constexpr int recordLockRight = 302;

// The action of an item, found by the caption that it carries now.
MenuAction actionOf(const MenuTable& menu, const QString& caption);

// A caption as plain words: without its mnemonic and dots.
QString plainCaption(const QString& caption);

struct ToolRow {
    const char* key;  // "Save"
    const char* toolTip;
    const char* icon;
    const char* item;              // the menu item that it stands for: "mnuRecordItem_4"; or empty
    RecordCommand command = {""};  // then this
    bool startsGroup = false;
};

const std::vector<ToolRow>& toolCatalogue();
