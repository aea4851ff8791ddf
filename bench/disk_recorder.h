#pragma once
#include <QByteArray>
#include <QString>
#include <vector>

// Writes down what this program does to the files of one folder: writes, cuts, flushes, and the names that
// come and go. It stands between the engine and the system's own calls.
namespace disk {

enum class Deed { Write, Cut, Create, Remove, FlushFile, FlushFolder, Acknowledge };

struct Event {
    Deed deed;
    int file = -1;  // numbered as they come; a name that is given anew names a new file
    QString name;
    qint64 offset = 0;  // of a write; the new length of a cut; the number of an acknowledged save
    QByteArray bytes;
};

// A file as it lay on the disk when the recording began.
struct FirstFile {
    QString name;
    QByteArray bytes;
};

struct Recording {
    std::vector<FirstFile> files;  // numbered from 0
    std::vector<Event> events;
};

void startRecording(const QString& folder);
// A save that the program has told the user of.
void acknowledge(int save);
Recording stopRecording();

}  // namespace disk
