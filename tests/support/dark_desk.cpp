#include "support/dark_desk.h"

#include <QApplication>
#include <QPalette>
#include <QStyle>

void useDarkDesk() {
    QPalette dark(QColor(49, 54, 59), QColor(49, 54, 59));
    dark.setColor(QPalette::Base, QColor(35, 38, 41));
    dark.setColor(QPalette::AlternateBase, QColor(42, 46, 50));
    dark.setColor(QPalette::ToolTipBase, QColor(49, 54, 59));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText, QPalette::ToolTipText,
                            QPalette::HighlightedText})
        dark.setColor(role, QColor(239, 240, 241));
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        dark.setColor(QPalette::Disabled, role, QColor(98, 101, 104));
    dark.setColor(QPalette::Highlight, QColor(61, 174, 233));
    dark.setColor(QPalette::Link, QColor(0, 0, 255));
    dark.setColor(QPalette::LinkVisited, QColor(255, 0, 255));
    dark.setColor(QPalette::PlaceholderText, QColor(239, 240, 241, 128));
    QApplication::style()->polish(dark);
    QApplication::setPalette(dark);
}

void useLightDesk() { QApplication::setPalette(QPalette()); }
