// Several workstations on one set of books, each a process of its own, that save, change, delete and close
// the day as fast as they can; afterwards nothing may be lost, doubled or half there:
//     stations N PLACE SAVES          PLACE: a new file, or the URI of an empty database
//     stations N PLACE SAVES --kill   now and then one of them is killed in the midst of it, and starts again
//     stations N PLACE SAVES --stops  somebody stops the server meanwhile and starts it again
//     (scripts/cluster
//                                     crash): a save that was told to have failed is no fault
// Prints how long the saves took, and ends with 1 after the first word of what is wrong.
#include "bench/station.h"
#include "books/balances.h"
#include "books/books_check.h"
#include "books/end_of_day.h"
#include "books/record_lock.h"
#include "demo/demo_firm.h"
#include "foundation/schema.h"
#include "foundation/session.h"
#include "foundation/store_place.h"

#include <QCoreApplication>
#include <QMap>
#include <QProcess>
#include <QSet>
#include <QThread>
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <memory>

namespace {
void say(const QString& line) {
    std::puts(qPrintable(line));
    std::fflush(stdout);
}

// ---- a station

QStringList column(Connection& store, const QString& statement) {
    QStringList values;
    for (auto row = store.execute(statement); !row.eof(); row.moveNext()) values += row.textAt(0);
    return values;
}

// What keeps the books while others save: closing the day, computing anew, locking.
void keepBooks(Station& station) {
    switch (station.dice.bounded(3)) {
        case 0:
            postAndCostAll(station.store);
            break;
        case 1:
            RecomputeReceivableBalances(station.store, Progress::none());
            break;
        default:
            if (const QString code = station.any(station.purchases); !code.isEmpty())
                if (takeRecordLock(station.store, purchaseBook, code) == LockResult::Taken)
                    setRecordLock(station.store, purchaseBook, code, false);
    }
}

QString work(Station& station) {
    const int kind = station.dice.bounded(100);
    if (kind < 40) return sell(station);
    if (kind < 60) return buy(station);
    if (kind < 75) return collect(station);
    if (kind < 82) return pay(station);
    if (kind < 91) return changeSale(station);
    if (kind < 98) return deleteSale(station);
    keepBooks(station);
    return {};
}

// One clock for all processes of a machine.
qint64 microseconds() {
    return std::chrono::duration_cast<std::chrono::microseconds>(
               std::chrono::steady_clock::now().time_since_epoch())
        .count();
}

// Each save is told when it is done, and then only, with the moments between which it was.
void workOn(Station& station, int saves) {
    while (saves > 0) {
        const qint64 began = microseconds();
        try {
            const QString done = work(station);
            if (done.isEmpty()) continue;
            say(QString("%1 %2 %3").arg(done).arg(began).arg(microseconds()));
            --saves;
        } catch (const StoreError& error) {
            say((error.number() == StoreError::busy ? "busy " : "error ") + error.text());
            QThread::msleep(50);
        }
    }
}

int runStation(const QString& place, int saves, unsigned seed) {
    session().CurrentUserCode = "ADMIN";
    Connection store;
    store.open(place, passwordFor(place));
    Station station{store,
                    QRandomGenerator(seed),
                    column(store, "SELECT ContactName FROM tblContactMaster WHERE IsCustomer = True"),
                    column(store, "SELECT ContactName FROM tblContactMaster WHERE IsSupplier = True"),
                    column(store, "SELECT ItemCode FROM tblItemMaster"),
                    {},
                    {},
                    say};
    workOn(station, saves);
    return 0;
}

// ---- all of them

struct Hazards {
    bool kills, stops;
    int killed = 0;
};

// One save of a number, or its deletion, and the moments between which it was.
struct Event {
    qint64 began, ended;
};

// What became of one number: "sale 03-1001-2026".
struct History {
    QList<Event> saves, deletions;
    bool mayBeGone = false;  // a deletion was begun, and nobody told its end

    // A number is given out again only when a deletion has freed it.
    bool isTwice() const {
        for (qsizetype at = 1; at < saves.size(); ++at)
            if (std::ranges::count_if(deletions,
                                      [&](const Event& gone) { return gone.began < saves[at].ended; }) < at)
                return !mayBeGone;
        return false;
    }
    bool stands() const { return saves.size() > deletions.size(); }
};

// What the stations were told, as they told it.
struct Record {
    QMap<QString, History> numbers;
    QList<double> waits;
    int busy = 0;
    QStringList errors;

    void take(const QString& line) {
        const QStringList words = line.split(u' ');
        if (words[0] == "busy") {
            ++busy;
        } else if (words.size() == 3 && (words[0] == "trying" || words[0] == "kept")) {
            numbers[words[1] + ' ' + words[2]].mayBeGone = words[0] == "trying";
        } else if (words.size() == 5 && words[0] != "error") {
            const Event event{words[3].toLongLong(), words[4].toLongLong()};
            waits += static_cast<double>(event.ended - event.began) / 1e3;
            note(words[0], numbers[words[1] + ' ' + words[2]], event);
        } else {
            errors += line;
        }
    }
    qsizetype givenAgain() const {
        return std::ranges::count_if(numbers,
                                     [](const History& history) { return history.saves.size() > 1; });
    }
    static void note(const QString& what, History& history, const Event& event) {
        if (what == "gone") history.mayBeGone = false;
        if (what == "gone") history.deletions += event;
        if (what != "new") return;
        history.saves += event;
        std::ranges::sort(history.saves, {}, &Event::ended);
    }
};

class Trial {
  public:
    Trial(const QString& place, int count, int saves, bool kills)
        : place_(place), saves_(saves / count), kills_(kills) {
        for (int station = 0; station < count; ++station) start(station);
    }

    Record run() {
        for (bool going = true; going;) {
            going = false;
            for (int station = 0; station < static_cast<int>(processes_.size()); ++station)
                going |= follow(station);
            if (kills_ && going && dice_.bounded(100) == 0) killOne();
        }
        return record_;
    }
    int killed() const { return killed_; }

  private:
    static constexpr int mostKills = 100;

    void start(int station) {
        auto process = std::make_unique<QProcess>();
        process->setProcessChannelMode(QProcess::ForwardedErrorChannel);
        process->start(QCoreApplication::applicationFilePath(),
                       {"--station", place_, QString::number(saves_), QString::number(++seed_)});
        process->waitForStarted();
        if (station == static_cast<int>(processes_.size()))
            processes_.push_back(std::move(process));
        else
            processes_[static_cast<size_t>(station)] = std::move(process);
    }
    // A line that a killed station did not end was never told.
    bool follow(int station) {
        QProcess& process = *processes_[static_cast<size_t>(station)];
        process.waitForReadyRead(2);
        while (process.canReadLine()) record_.take(QString::fromUtf8(process.readLine()).trimmed());
        if (process.state() == QProcess::NotRunning && process.exitCode() != 0 &&
            process.exitStatus() == QProcess::NormalExit)
            record_.errors += "a station ended";
        return process.state() != QProcess::NotRunning;
    }
    void killOne() {
        const int station = dice_.bounded(static_cast<int>(processes_.size()));
        QProcess& process = *processes_[static_cast<size_t>(station)];
        if (process.state() != QProcess::Running || killed_ == mostKills) return;
        process.kill();
        process.waitForFinished();
        follow(station);
        ++killed_;
        start(station);
    }

    QString place_;
    int saves_;
    bool kills_;
    int killed_ = 0;
    unsigned seed_ = 0;
    QRandomGenerator dice_{4711};
    std::vector<std::unique_ptr<QProcess>> processes_;
    Record record_;
};

// ---- what they leave

QSet<QString> stored(Connection& store) {
    QSet<QString> names;
    const std::pair<const char*, const char*> books[] = {
        {"sale ", "SELECT RefNo FROM tblSalesMaster"},
        {"purchase ", "SELECT PurchaseNo FROM tblPurchaseMaster"},
        {"receipt ", "SELECT PayNo FROM tblReceiptMaster"},
        {"voucher ", "SELECT VoucherNo FROM tblDisbursementMaster"}};
    for (const auto& [kind, statement] : books)
        for (const QString& number : column(store, statement)) names.insert(kind + number);
    return names;
}

struct Counter {
    const char* kind;
    const char* table;
};
constexpr Counter counters[] = {
    {"sale ", "tblSalesKey"}, {"purchase ", "tblPurchaseKey"}, {"voucher ", "tblDisbursementKey"}};

qint64 serialOf(const QString& number) { return number.section(u'-', 1, 1).toLongLong(); }

struct NumberedSave {
    qint64 serial;
    Event event;
    bool isFirst;
};

// In the order in which they were told.
std::vector<NumberedSave> savesOf(const char* kind, const Record& record) {
    std::vector<NumberedSave> saves;
    for (const auto& [name, history] : record.numbers.asKeyValueRange())
        for (qsizetype at = 0; name.startsWith(kind) && at < history.saves.size(); ++at)
            saves.push_back({serialOf(name), history.saves[at], at == 0});
    std::ranges::sort(saves, {}, [](const NumberedSave& save) { return save.event.ended; });
    return saves;
}

// A counter that goes back offers a number again, or lower ones that were never given out. Only a number that
// a deletion has freed may take it back, as one that is typed.
QStringList orderFaults(const char* kind, const std::vector<NumberedSave>& saves) {
    QStringList faults;
    std::vector<NumberedSave> begun = saves;
    std::ranges::sort(begun, {}, [](const NumberedSave& save) { return save.event.began; });
    qint64 highest = 0;  // of those that had ended before this one began
    for (size_t told = 0; const NumberedSave& save : begun) {
        for (; saves[told].event.ended < save.event.began; ++told)
            highest = std::max(highest, saves[told].serial);
        if (save.isFirst && save.serial < highest)
            faults += QString("%1%2 came out after %3").arg(kind).arg(save.serial).arg(highest);
    }
    return faults;
}

// In the end it holds the serial of the last save, or of one that was under way at the same time, or of one
// that nobody was told of.
QStringList counterFaults(Connection& store, const Counter& counter, const Record& record,
                          const QSet<QString>& untold) {
    const std::vector<NumberedSave> saves = savesOf(counter.kind, record);
    if (saves.empty()) return {};
    const QString statement = QString("SELECT Server FROM %1").arg(counter.table);
    const qint64 value = column(store, statement).value(0).toLongLong();
    const bool isTold = std::ranges::any_of(saves, [&](const NumberedSave& save) {
        return save.serial == value && save.event.ended >= saves.back().event.began;
    });
    const bool isUntold = std::ranges::any_of(untold, [&](const QString& name) {
        return name.startsWith(counter.kind) && serialOf(name) == value;
    });
    QStringList faults = orderFaults(counter.kind, saves);
    if (!isTold && !isUntold) faults += QString("%1 holds %2").arg(counter.table).arg(value);
    return faults;
}

QSet<QString> overpaid(Connection& store) {
    const QStringList names = column(store, "SELECT RefNo FROM tblSalesMaster WHERE Balance < 0") +
                              column(store, "SELECT PurchaseNo FROM tblPurchaseMaster WHERE Balance < 0");
    return {names.begin(), names.end()};
}

// What was told to stand is there, and what was told to be gone is not.
QStringList tellingFaults(const QSet<QString>& found, const Record& record) {
    QStringList faults;
    for (const auto& [name, history] : record.numbers.asKeyValueRange()) {
        if (history.isTwice()) faults += name + " was given out twice";
        if (history.mayBeGone) continue;
        if (history.stands() && !found.contains(name)) faults += name + " is lost";
        if (!history.stands() && found.contains(name)) faults += name + " was deleted, and is there";
    }
    return faults;
}

QSet<QString> untoldOf(QSet<QString> found, const Record& record) {
    for (const QString& name : record.numbers.keys()) found.remove(name);
    return found;
}

// A station that is killed, or that loses the server in the midst of a commit, may leave one save that nobody
// was told of.
QStringList faultsOf(Connection& store, const Record& record, const QSet<QString>& before,
                     const QSet<QString>& overpaidBefore, const Hazards& hazards) {
    QStringList faults = (hazards.stops ? QStringList() : record.errors) + balanceFaults(store);
    const QSet<QString> found = stored(store) - before;
    const QSet<QString> untold = untoldOf(found, record);
    faults += tellingFaults(found, record);
    for (const Counter& counter : counters) faults += counterFaults(store, counter, record, untold);
    if (untold.size() > hazards.killed + (hazards.stops ? record.errors.size() : 0))
        faults += QString("%1 were told to nobody").arg(untold.size());
    for (const QString& name : overpaid(store) - overpaidBefore) faults += name + " is overpaid";
    for (const char* statement :
         {"SELECT Reference FROM tblSalesDetails WHERE Reference NOT IN (SELECT RefNo FROM tblSalesMaster)",
          "SELECT RefNo FROM tblSalesMaster WHERE RefNo NOT IN (SELECT Reference FROM tblSalesDetails)"})
        for (const QString& number : column(store, statement)) faults += number + " from: " + statement;
    return faults;
}

QString waitsText(QList<double> waits) {
    std::ranges::sort(waits);
    const auto at = [&](double part) {
        const auto place = static_cast<qsizetype>(static_cast<double>(waits.size() - 1) * part);
        return QString::number(waits.isEmpty() ? 0 : waits[place], 'f', 1);
    };
    return QString("%1 saves: median %2 ms, 95 in 100 within %3 ms, longest %4 ms")
        .arg(waits.size())
        .arg(at(0.5), at(0.95), at(1));
}

int runTrial(const QString& place, int count, int saves, Hazards hazards) {
    makeDemoStore(place);
    Connection store;
    store.open(place, passwordFor(place));
    const QSet<QString> before = stored(store), overpaidBefore = overpaid(store);
    Trial trial(place, count, saves, hazards.kills);
    const Record record = trial.run();
    hazards.killed = trial.killed();
    const QStringList faults = faultsOf(store, record, before, overpaidBefore, hazards);
    say(waitsText(record.waits));
    say(QString("told to try again: %1 times; that it failed: %2 times; killed: %3 times")
            .arg(record.busy)
            .arg(record.errors.size())
            .arg(trial.killed()));
    say(QString("numbers that were freed and given out again: %1").arg(record.givenAgain()));
    for (const QString& fault : faults.mid(0, 20)) say("WRONG: " + fault);
    return faults.isEmpty() ? 0 : 1;
}
}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    QStringList arguments = QCoreApplication::arguments().mid(1);
    const Hazards hazards{arguments.removeOne("--kill"), arguments.removeOne("--stops")};
    const bool station = arguments.removeOne("--station");
    if (arguments.size() != 3) {
        say("usage: stations N PLACE SAVES [--kill] [--stops]");
        return 2;
    }
    try {
        registerSchema();
        if (station) return runStation(arguments[0], arguments[1].toInt(), arguments[2].toUInt());
        return runTrial(arguments[1], arguments[0].toInt(), arguments[2].toInt(), hazards);
    } catch (const std::exception& error) {
        say(QString("error %1").arg(error.what()));
        return 1;
    }
}
