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
#include <QElapsedTimer>
#include <QProcess>
#include <QSet>
#include <QThread>
#include <algorithm>
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

// Each save is told when it is done, and then only.
void workOn(Station& station, int saves) {
    while (saves > 0) {
        QElapsedTimer timer;
        timer.start();
        try {
            const QString done = work(station);
            if (done.isEmpty()) continue;
            say(QString("%1 %2").arg(done).arg(static_cast<double>(timer.nsecsElapsed()) / 1e6, 0, 'f', 1));
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
                    {}};
    workOn(station, saves);
    return 0;
}

// ---- all of them

struct Hazards {
    bool kills, stops;
};

// What the stations were told, as they told it.
struct Record {
    QSet<QString> standing, gone;
    QHash<QString, int> stations;  // of each new number: the station that got it
    QSet<QString> twice, freed;    // numbers that two stations got, and those that a deletion freed
    QList<double> waits;
    int busy = 0;
    QStringList errors;

    void take(const QString& line, int station) {
        const QStringList words = line.split(u' ');
        if (words[0] == "busy") {
            ++busy;
        } else if (words[0] == "error" || words.size() != 3) {
            errors += line;
        } else {
            waits += words[2].toDouble();
            note(words[0], words[1], station);
        }
    }
    void note(const QString& kind, const QString& number, int station) {
        if (kind == "gone") {
            standing.remove("sale " + number);
            gone.insert("sale " + number);
            freed.insert("sale " + number);
            return;
        }
        const QString name = kind + ' ' + number;
        if (stations.value(name, station) != station) twice.insert(name);
        stations[name] = station;
        gone.remove(name);  // its number came again
        standing.insert(name);
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
        while (process.canReadLine()) record_.take(QString::fromUtf8(process.readLine()).trimmed(), station);
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

// A counter that went back gives a number out again: the highest serial is never beyond it.
QStringList counterFaults(Connection& store) {
    const QStringList counter = column(store, "SELECT Server FROM tblSalesKey");
    QStringList faults;
    for (const QString& number : column(store, "SELECT RefNo FROM tblSalesMaster"))
        if (number.section(u'-', 1, 1).toLongLong() > counter.value(0).toLongLong())
            faults += "the counter of sales stands before " + number;
    return faults;
}

QSet<QString> overpaid(Connection& store) {
    const QStringList names = column(store, "SELECT RefNo FROM tblSalesMaster WHERE Balance < 0") +
                              column(store, "SELECT PurchaseNo FROM tblPurchaseMaster WHERE Balance < 0");
    return {names.begin(), names.end()};
}

// With stations killed, a save may be there that nobody was told of, and a deletion as well.
QStringList faultsOf(Connection& store, const Record& record, const QSet<QString>& overpaidBefore,
                     const Hazards& hazards) {
    QStringList faults = (hazards.stops ? QStringList() : record.errors) + balanceFaults(store);
    const QSet<QString> found = stored(store);
    for (const QString& name : record.twice - record.freed) faults += name + " was given out twice";
    // A number that a deletion frees goes to whoever waited with it for his save, and takes the counter back
    // with it. What was told first, the deletion or the second save, the lines of two stations do not say.
    const QSet<QString> unclear = record.twice & record.freed;
    if (unclear.isEmpty()) faults += counterFaults(store);
    for (const QString& name : record.standing - found - unclear)
        if ((!hazards.kills && !hazards.stops) || !name.startsWith("sale ")) faults += name + " is lost";
    for (const QString& name : (record.gone & found) - unclear) faults += name + " was deleted, and is there";
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

int runTrial(const QString& place, int count, int saves, const Hazards& hazards) {
    makeDemoStore(place);
    Connection store;
    store.open(place, passwordFor(place));
    const QSet<QString> overpaidBefore = overpaid(store);
    Trial trial(place, count, saves, hazards.kills);
    const Record record = trial.run();
    const QStringList faults = faultsOf(store, record, overpaidBefore, hazards);
    say(waitsText(record.waits));
    say(QString("told to try again: %1 times; that it failed: %2 times; killed: %3 times")
            .arg(record.busy)
            .arg(record.errors.size())
            .arg(trial.killed()));
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
