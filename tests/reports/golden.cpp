#include "reports/golden.h"

#include "support/files.h"

#include <gtest/gtest.h>

#include <QStringList>

static QString differences(const QStringList& wanted, const QStringList& got) {
    QString text;
    for (qsizetype i = 0; i < std::max(wanted.size(), got.size()); ++i)
        if (wanted.value(i) != got.value(i))
            text +=
                QString("line %1\n  kept: %2\n  now:  %3\n").arg(i + 1).arg(wanted.value(i), got.value(i));
    return text;
}

void compareWithGolden(const QString& name, const QString& text) {
    const QString path = ZEVRIN_SOURCE_DIR "/tests/reports/golden/" + name;
    if (qEnvironmentVariableIsSet("ZEVRIN_WRITE_GOLDEN")) return writeFile(path, text.toUtf8());
    const QString kept = QString::fromUtf8(contentOf(path));
    EXPECT_TRUE(kept == text) << qPrintable(name) << '\n'
                              << qPrintable(differences(kept.split('\n'), text.split('\n')));
}
