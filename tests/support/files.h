#pragma once
#include <QByteArray>
#include <QString>

// What a file holds, and a file that holds this; fails the test when it cannot be read or written.
QByteArray contentOf(const QString& path);
void writeFile(const QString& path, const QByteArray& content);
