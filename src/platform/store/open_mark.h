#pragma once
#include <QString>
#include <QStringList>

// A file beside the store, locked while a connection has it open and removed when the connection closes in
// peace. One that nobody has locked was left by a program that ended another way.
class OpenMark {
  public:
    // A mark that cannot be made, as on a full disk, is done without.
    explicit OpenMark(const QString& storePath);
    ~OpenMark();
    OpenMark(const OpenMark&) = delete;
    OpenMark& operator=(const OpenMark&) = delete;

    // The marks beside the store that nobody has locked.
    static QStringList leftBehind(const QString& storePath);

  private:
    QString path_;
    int file_ = -1;
};
