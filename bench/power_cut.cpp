// Cuts the power in the middle of saves. It records what the program does to the disk while it saves orders,
// and makes from that what the disk may hold after a cut at any point: each write since the last flush there,
// not there or torn, each name that came or went since the last flush of the folder both there and not. Every
// such disk is opened: the file must be sound, and hold all acknowledged saves and no half of one.
//
//     power_cut [disks to look at = 4000]
#include "bench/disk_recorder.h"
#include "foundation/schema.h"
#include "foundation/session.h"
#include "purchases/purchase_document.h"
#include "sales/sales_document.h"

#include <QCoreApplication>
#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <sqlite3.h>
#include <cstdio>
#include <map>
#include <random>

namespace {
using disk::Deed;
using disk::Event;

// What the disk holds for certain, and what of it may or may not have arrived.
class Disk {
  public:
    explicit Disk(const disk::Recording& recording) {
        for (const disk::FirstFile& file : recording.files) {
            names_[file.name] = static_cast<int>(files_.size());
            files_[static_cast<int>(files_.size())].safe = file.bytes;
        }
    }
    void apply(const Event& event);
    // The files of one disk that a cut may leave here. The names that are not flushed yet follow the bits of
    // the choice, the writes the random numbers.
    std::map<QString, QByteArray> image(unsigned choice, std::mt19937& random) const;
    unsigned choices() const { return 1U << std::min<size_t>(names.size(), 4); }

  private:
    struct File {
        QByteArray safe;
        std::vector<Event> pending;
    };
    std::map<int, File> files_;
    std::map<QString, int> names_;
    std::vector<Event> names;  // that came or went
};

void put(QByteArray& content, const Event& event) {
    if (event.deed == Deed::Cut) return void(content.resize(event.offset, '\0'));
    if (content.size() < event.offset + event.bytes.size())
        content.resize(event.offset + event.bytes.size(), '\0');
    content.replace(event.offset, event.bytes.size(), event.bytes);
}

void rename(std::map<QString, int>& names, const Event& event) {
    if (event.deed == Deed::Create)
        names[event.name] = event.file;
    else
        names.erase(event.name);
}

void Disk::apply(const Event& event) {
    switch (event.deed) {
        case Deed::Write:
        case Deed::Cut:
            return files_[event.file].pending.push_back(event);
        case Deed::Create:
        case Deed::Remove:
            return names.push_back(event);
        case Deed::FlushFile:
            for (const Event& pending : std::exchange(files_[event.file].pending, {}))
                put(files_[event.file].safe, pending);
            return;
        case Deed::FlushFolder:
            for (const Event& pending : std::exchange(names, {})) rename(names_, pending);
            return;
        case Deed::Acknowledge:
            return;
    }
}

// A write of which only some sectors arrived.
void tear(QByteArray& content, const Event& event, std::mt19937& random) {
    constexpr qsizetype sector = 512;
    for (qsizetype at = 0; at < event.bytes.size(); at += sector)
        if (random() % 2 == 0)
            put(content, {Deed::Write, event.file, {}, event.offset + at, event.bytes.mid(at, sector)});
}

std::map<QString, QByteArray> Disk::image(unsigned choice, std::mt19937& random) const {
    std::map<QString, int> there = names_;
    for (size_t at = 0; at < names.size(); ++at)
        if ((choice >> std::min<size_t>(at, 4) & 1U) != 0) rename(there, names[at]);
    const unsigned arriving = random() % 4;  // of four writes
    std::map<QString, QByteArray> image;
    for (const auto& [name, number] : there) {
        const auto file = files_.find(number);
        QByteArray& content = image[name];
        if (file == files_.end()) continue;
        content = file->second.safe;
        for (const Event& event : file->second.pending) {
            if (random() % 16 == 0 && event.deed == Deed::Write)
                tear(content, event, random);
            else if (random() % 3 < arriving)
                put(content, event);
        }
    }
    return image;
}

// Every row of every table, in one number; empty for a store that cannot be read or is not sound.
QByteArray digestOf(const QString& path) {
    sqlite3* engine = nullptr;
    QCryptographicHash hash(QCryptographicHash::Sha1);
    const auto read = [&](const QByteArray& query, auto&& take) {
        sqlite3_stmt* statement = nullptr;
        int result = sqlite3_prepare_v2(engine, query.constData(), -1, &statement, nullptr);
        while (result == SQLITE_OK || result == SQLITE_ROW) {
            result = sqlite3_step(statement);
            if (result == SQLITE_ROW) take(statement);
        }
        sqlite3_finalize(statement);
        return result == SQLITE_DONE;
    };
    const auto textOf = [](sqlite3_stmt* statement, int column) {
        return QByteArray(reinterpret_cast<const char*>(sqlite3_column_text(statement, column)));
    };
    bool sound = sqlite3_open(QFile::encodeName(path).constData(), &engine) == SQLITE_OK;
    sound = sound &&
            read("PRAGMA integrity_check", [&](sqlite3_stmt* row) { sound = textOf(row, 0) == "ok"; }) &&
            sound;
    QByteArrayList tables;
    sound = sound && read("SELECT name FROM sqlite_master WHERE type = 'table' ORDER BY name",
                          [&](sqlite3_stmt* row) { tables += textOf(row, 0); });
    for (const QByteArray& table : tables)
        sound = sound && read("SELECT * FROM " + table, [&](sqlite3_stmt* row) {
                    for (int column = 0; column < sqlite3_column_count(row); ++column)
                        hash.addData(textOf(row, column) + '|');
                });
    sqlite3_close(engine);
    return sound ? hash.result() : QByteArray();
}

struct Saves {
    disk::Recording recording;
    QByteArrayList states;  // after each save, the first before any
};

OrderDocument order(Connection& store, const OrderBook& book, int number) {
    OrderDocument document = newOrder(store, book);
    document.contactName = "Trader";
    for (int line = 0; line < 5; ++line)
        document.lines +=
            makeOrderLine(QString("I%1").arg((number + line) % 9), "Goods", "PC", Currency::fromInteger(1),
                          Currency::fromInteger(1), Currency::fromInteger(10 + number), Currency());
    return document;
}

void save(Connection& store, int number) {
    const OrderBook& book = number % 3 == 0 ? purchaseOrders : salesOrders;
    OrderDocument document = order(store, book, number);
    if (!isDone(saveOrder(store, book, document))) qFatal("an order was refused");
}

// The orders of a small day. Every other one runs out of memory for its pages, so that they reach the file
// before the commit.
Saves record(const QString& folder, const char* journalMode) {
    constexpr int saves = 14;
    const QString path = folder + u'/' + storeFileName;
    Saves result{{}, {digestOf(path)}};
    disk::startRecording(folder);
    Connection store;
    store.open(path, storePassword);
    if (journalMode) store.execute(QString("PRAGMA journal_mode = %1").arg(journalMode));
    for (int number = 0; number < saves; ++number) {
        store.run(number % 2 == 0 ? "PRAGMA cache_size = 10" : "PRAGMA cache_size = -32000");
        save(store, number);
        disk::acknowledge(number + 1);
        result.states += digestOf(path);
    }
    result.recording = disk::stopRecording();
    return result;
}

struct Findings {
    int disks = 0, corrupt = 0, half = 0, missing = 0;
};

class Replay {
  public:
    explicit Replay(const Saves& saves) : saves_(saves), disk_(saves.recording) {}
    Findings run(int disks);

  private:
    void look(unsigned choice);
    const Saves& saves_;
    Disk disk_;
    QTemporaryDir folder_{QFile::exists("/dev/shm") ? "/dev/shm/power-XXXXXX" : "power-XXXXXX"};
    std::mt19937 random_{1};
    qsizetype acknowledged_ = 0;
    Findings findings_;
};

void Replay::look(unsigned choice) {
    for (const QString& name : QDir(folder_.path()).entryList(QDir::Files))
        QFile::remove(folder_.filePath(name));
    for (const auto& [name, bytes] : disk_.image(choice, random_)) {
        QFile file(folder_.filePath(name));
        if (!file.open(QFile::WriteOnly) || file.write(bytes) != bytes.size()) qFatal("no room for a disk");
    }
    const QByteArray digest = digestOf(folder_.filePath(storeFileName));
    ++findings_.disks;
    const qsizetype state = saves_.states.indexOf(digest);
    if (digest.isEmpty())
        ++findings_.corrupt;
    else if (state < 0 || state > acknowledged_ + 1)
        ++findings_.half;
    else if (state < acknowledged_)
        ++findings_.missing;
}

// Cut after each event, as often as it takes to come to the number of disks.
Findings Replay::run(int disks) {
    const int events = static_cast<int>(saves_.recording.events.size());
    const int turns = std::max(1, (disks + events - 1) / events);
    for (const Event& event : saves_.recording.events) {
        disk_.apply(event);
        if (event.deed == Deed::Acknowledge) acknowledged_ = event.offset;
        const unsigned choices = disk_.choices();
        for (unsigned look_ = 0; look_ < std::max<unsigned>(choices, static_cast<unsigned>(turns)); ++look_)
            look(look_ % choices);
    }
    return findings_;
}

Findings tryMode(const char* name, const char* journalMode, const QString& seed, int disks) {
    const QTemporaryDir folder;
    QFile::copy(seed, folder.filePath(storeFileName));
    const Saves saves = record(folder.path(), journalMode);
    const Findings found = Replay(saves).run(disks);
    std::printf("%-28s %5d disks: %d corrupt, %d half saves, %d acknowledged saves missing\n", name,
                found.disks, found.corrupt, found.half, found.missing);
    return found;
}

void fill(const QString& path) {
    makeDeliveredStore(path);
    Connection store;
    store.open(path, storePassword);
    store.run("INSERT INTO tblContactMaster (ContactID, ContactName) VALUES ('1', 'Trader')");
    for (int item = 0; item < 9; ++item)
        store.run({"INSERT INTO tblItemMaster (ItemCode, Description) VALUES (?, 'Goods')",
                   {QString("I%1").arg(item)}});
}
}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const int disks = argc > 1 ? atoi(argv[1]) : 4000;
    const QTemporaryDir folder;
    const QString seed = folder.filePath("seed.mdb");
    registerSchema();
    fill(seed);
    const Findings own = tryMode("as the program saves", nullptr, seed, disks);
    // That the search finds what there is to find.
    const Findings deleted = tryMode("the journal only deleted", "DELETE", seed, std::min(disks, 800));
    return own.corrupt + own.half + own.missing == 0 && deleted.missing > 0 ? 0 : 1;
}
