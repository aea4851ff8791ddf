#pragma once
#include <QIcon>
#include <QString>

// The program's own bundled pictures (ui/icons/*.svg), drawn for light and dark palettes: "new", "edit",
// "delete", "save", "close", "first", "previous", "next", "last", "print", "search", "refresh", "exit",
// "copy", "cut", "paste", "item", "contact", "unit", "sales", "purchase", "receipt", "disbursement", "users",
// "company", "register", "calculator", "help", "switch", "upload", "bird", "arrow-up", "arrow-down", "lock",
// "zoom-in", "zoom-out", "fit-width", "fit-page", "page", "pages", "thumbnails", "text", "rich-text",
// "copy-all", and those of boxes: "box-information", "box-question", "box-exclamation", "box-critical".
QIcon bundledIcon(const QString& name);
