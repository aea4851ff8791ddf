#include "support/files.h"

#include <QFile>

#include <gtest/gtest.h>

QByteArray contentOf(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path + ": " + file.errorString());
    return file.readAll();
}

void writeFile(const QString& path, const QByteArray& content) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly)) << qPrintable(path + ": " + file.errorString());
    ASSERT_EQ(file.write(content), content.size());
}
