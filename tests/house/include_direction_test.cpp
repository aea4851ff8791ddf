#include "support/files.h"

#include <QDirIterator>
#include <QRegularExpression>

#include <gtest/gtest.h>

// The floors of the house, lowest first; siblings stand on one line and know nothing of each other.
static const QList<QStringList> floors = {
    {"platform"},  {"foundation"},         {"books"}, {"masters"}, {"reports"},
    {"documents"}, {"sales", "purchases"}, {"tools"}, {"shell"}};

static int levelOf(const QString& folder) {
    for (qsizetype level = 0; level < floors.size(); ++level)
        if (floors[level].contains(folder)) return static_cast<int>(level);
    return -1;
}

static QStringList arrowsUp(const QString& path, const QString& floor) {
    static const QRegularExpression include("^\\s*#include\\s+\"([a-z]+)/",
                                            QRegularExpression::MultilineOption);
    QStringList faults;
    for (auto found = include.globalMatch(QString::fromUtf8(contentOf(path))); found.hasNext();) {
        const QString target = found.next().captured(1);
        const bool own = target == floor;
        if (levelOf(target) < 0 || (!own && levelOf(target) >= levelOf(floor)))
            faults += path + " -> " + target;
    }
    return faults;
}

TEST(House, IncludesOnlyPointDown) {
    const QDir source(QString(ZEVRIN_SOURCE_DIR) + "/src");
    QStringList faults;
    int files = 0;
    for (const QStringList& level : floors)
        for (const QString& floor : level)
            for (QDirIterator it(source.filePath(floor), {"*.h", "*.cpp"}, QDir::Files,
                                 QDirIterator::Subdirectories);
                 it.hasNext(); ++files)
                faults += arrowsUp(it.next(), floor);
    EXPECT_GT(files, 50);
    EXPECT_TRUE(faults.isEmpty()) << qPrintable(faults.join('\n'));
}

// One program has one class of a name: of two the linker takes the parts of either for both.
TEST(House, NoTwoHeadersNameOneClass) {
    static const QRegularExpression declared("^(?:class|struct) (\\w+)(?: final)?(?: : [^;{]+)? \\{",
                                             QRegularExpression::MultilineOption);
    QHash<QString, QString> headers;
    for (QDirIterator it(QString(ZEVRIN_SOURCE_DIR) + "/src", {"*.h"}, QDir::Files,
                         QDirIterator::Subdirectories);
         it.hasNext();) {
        const QString path = it.next();
        for (auto found = declared.globalMatch(QString::fromUtf8(contentOf(path))); found.hasNext();) {
            const QString name = found.next().captured(1);
            EXPECT_EQ(headers.value(name, path), path) << qPrintable(name + ": " + headers.value(name));
            headers.insert(name, path);
        }
    }
    EXPECT_GT(headers.size(), 100);
}
