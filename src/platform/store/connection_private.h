#pragma once
#include "platform/store/engine.h"
#include "platform/store/open_mark.h"

#include <optional>

class FileEngine;

struct Connection::Private {
    QString place;
    std::unique_ptr<Engine> engine;  // none while the connection is closed
    FileEngine* file = nullptr;      // the same, where the books are a file
    QStringList leftMarks;
    std::optional<OpenMark> mark;
    QHash<QString, QHash<QString, QString>> types;                    // of columns, by table
    QHash<QString, std::shared_ptr<const RecordsetColumns>> columns;  // by table

    void openFile(const QString& path, const char* mode);
    void openServer(const QString& uri, const QString& password);
    void shut();
    // Throws when the connection is closed.
    Engine& opened() const;
    FileEngine& openedFile() const;
};
