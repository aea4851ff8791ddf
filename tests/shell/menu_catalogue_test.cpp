#include "shell/menu_catalogue.h"

#include "foundation/schema.h"

#include <QMap>
#include <QSet>

#include <gtest/gtest.h>

namespace {

TEST(MenuCatalogue, EveryRightOfTheStoreOpensOneItemOfThatName) {
    QMap<int, QString> captions;
    for (const MenuTable& menu : menuCatalogue()) {
        if (menu.right) captions[menu.right] = plainCaption(menu.caption);
        for (const MenuItem& row : menu.rows) {
            if (!row.right) continue;
            ASSERT_FALSE(captions.contains(row.right)) << row.right;
            captions[row.right] = plainCaption(row.caption);
        }
    }
    captions[recordLockRight] = plainCaption(recordLockCaption);
    ASSERT_EQ(captions.size(), static_cast<qsizetype>(menuRights().size()));
    for (const MenuRight& right : menuRights())
        EXPECT_EQ(captions[right.code], plainCaption(right.name)) << right.code;
}

TEST(MenuCatalogue, NoIndexAndNoShortcutStandsTwice) {
    QSet<QString> names;
    QSet<QString> shortcuts;
    for (const MenuTable& menu : menuCatalogue())
        for (const MenuItem& row : menu.rows) {
            const QString name = QString("%1_%2").arg(menu.items).arg(row.index);
            EXPECT_FALSE(names.contains(name)) << name.toStdString();
            names << name;
            if (!*row.shortcut) continue;
            EXPECT_FALSE(shortcuts.contains(row.shortcut)) << row.shortcut;
            shortcuts << row.shortcut;
        }
    for (const ToolRow& tool : toolCatalogue())
        EXPECT_TRUE(names.contains(tool.item) || *tool.command.routine) << tool.key;
}

}  // namespace
