#include "documents/check_books.h"
#include "foundation/store_place.h"
#include "support/crash_runner.h"

using ::testing::ElementsAre;

namespace {
class Checks : public CheckBooks, public ::testing::WithParamInterface<const CheckBook*> {
  protected:
    const CheckBook& book() const { return *GetParam(); }
    void add(const Row& row) { CheckBooks::add(book(), row); }
    void addTellingRows() {
        add({1, "B1", check::pending, false});
        add({2, "B2", check::cleared, true});
        add({3, "B3", check::drawnAgainstInsufficient, false, QDate(2026, 4, 1)});
        add({4, &book() == &issuedChecks ? QVariant("Cash") : QVariant(), check::cash, true});
        add({5, {}, check::cash, true});
        add({6, "A6", "Card", true});
    }
    QList<StoredCheck> loaded(const QString& view, const Sql& search = {}) {
        QList<StoredCheck> checks;
        const auto rows = std::get<QList<CheckRow>>(loadChecks(store, book(), view, search));
        for (const CheckRow& row : rows) checks += row.check;
        return checks;
    }
    QString keys(const QString& view, const Sql& search = {}) {
        QString text;
        for (const StoredCheck& check : loaded(view, search)) text += QString::number(check.key);
        return text;
    }
    std::string tagged(const QList<StoredCheck>& marked, BoxAnswer answer = BoxAnswer::Yes) {
        const Outcome outcome = tagAsCleared(store, book(), marked, {{"tag", answer}});
        if (!isDone(outcome)) return said(outcome);
        std::string texts;
        for (const Box& box : std::get<Done>(outcome).boxes) texts += said(box) + ' ';
        return texts;
    }
};
INSTANTIATE_TEST_SUITE_P(Sides, Checks, ::testing::Values(&receivedChecks, &issuedChecks),
                         [](const auto& side) { return std::string(side.param->table); });

TEST_P(Checks, AreListedByView) {
    addTellingRows();
    EXPECT_EQ(keys("Pending Checks"), "13");
    EXPECT_EQ(keys("Cleared Checks"), "26");
    EXPECT_EQ(keys("Cash Payment"), "45");
    if (findCheckView(book(), "Credit Card Payment")) {
        EXPECT_EQ(keys("Credit Card Payment"), "6");
    }
    EXPECT_EQ(said(std::get<Fault>(loadChecks(store, book(), "Bounced", {})).box),
              "Error!: Please Select Checks to View!");
    const auto rows = std::get<QList<CheckRow>>(loadChecks(store, book(), "Pending Checks", {}));
    const bool received = GetParam() == &receivedChecks;
    EXPECT_EQ(rows[0].texts,
              (received ? QStringList{"77", "1", "DR1"} : QStringList{"V77", "1", "03/01/2026"}) +
                  QStringList({"Nena", "B1", "03/20/2026", "1,250.00", "Pending"}));
}

TEST_P(Checks, AreFoundByCategory) {
    addTellingRows();
    const QString number = book().categories.first().name;
    const struct {
        CheckSearch search;
        const char* found;
    } cases[]{{{number, "7", {}, {}, {}}, "13"},
              {{number, "V9", {}, {}, {}}, ""},
              {{book().contactCategory, "EN", {}, {}, {}}, "13"},
              {{"Check No.", "b3", {}, {}, {}}, "3"},
              {{"Check Date", "4/1/26", {}, {}, {}}, "3"},
              {{"Check Date", "13/1/26", {}, {}, {}}, "Error!: Invalid Search Date! txtSearch"},
              {{"Check Status", "x", "DAIF", {}, {}}, "3"},
              {{"Check Date Period", {}, {}, "3/20/2026", "3/31/2026"}, "1"},
              {{"Check Date Period", {}, {}, "3/20/2026", "x"}, "Error!: Invalid Check Date Range! txtTo"},
              {{"Color", "x", {}, {}, {}}, "Error!: Search Criteria Does Not Exist! cboSearchBy"}};
    for (const auto& row : cases) {
        const auto clause = checkSearchClause(book(), row.search);
        if (const auto* fault = std::get_if<Fault>(&clause))
            EXPECT_EQ(said(fault->box) + ' ' + fault->focus.toStdString(), row.found);
        else
            EXPECT_EQ(keys("Pending Checks", std::get<Sql>(clause)), row.found)
                << qPrintable(row.search.category);
    }
}

TEST_P(Checks, AreTaggedUnlessSomeoneHasChangedThem) {
    addTellingRows();
    add({7, "B7", check::pending, false});
    add({8, "B8", check::pending, false});
    const QList<StoredCheck> marked = loaded("Pending Checks") + loaded("Cleared Checks").last(1);
    EXPECT_EQ(said(tagAsCleared(store, book(), {})),
              "No Item Selected!: You Have Not Selected Any Checks to Tag as Cleared!");
    EXPECT_EQ(said(tagAsCleared(store, book(), marked)),
              "? Proceed?: This will Tag 4 Checks as Cleared! Do you want to Continue?")
        << "a card is none";
    EXPECT_EQ(tagged(marked, BoxAnswer::No), ": ");
    store.run(QString("UPDATE %1 SET CheckNo = 'B9' WHERE ZevRef = 7").arg(book().table));
    store.run(QString("DELETE FROM %1 WHERE ZevRef = 8").arg(book().table));
    EXPECT_EQ(tagged(marked),
              std::string(book().taggedTitle) +
                  ": 3 Checks Successfully Tagged! Not Tagged!: 1 Checks were Changed by Another "
                  "User and were Left as They Are! ");
    EXPECT_EQ(keys("Pending Checks"), "7");
}

// Killed at any statement, the bulk tag has tagged all of them or none.
TEST_P(Checks, AreTaggedAllOrNone) {
    for (int key = 1; key <= 4; ++key) add({key, QString("B%1").arg(key), check::pending, false});
    const QList<StoredCheck> marked = loaded("Pending Checks");
    store.close();
    const int statements =
        crashAtEveryStatement([&](Connection&) { tagged(marked); },
                              [&](Connection&, const CrashPoint& at) {
                                  EXPECT_EQ(keys("Pending Checks"), at.acknowledged ? "" : "1234");
                              });
    EXPECT_GE(statements, 5);
    store.open(storePlace(), passwordFor(storePlace()));
}

// Each row mends the fault of the row before.
TEST_P(Checks, AreUpdatedAfterTheirTests) {
    add({1, "B1", check::pending, false});
    const StoredCheck found = *findCheck(store, book(), 1);
    CheckStatusEntry entry{"b2", "x", "Cleared", false, false};
    const struct {
        std::function<void()> mend;
        std::string text;
    } steps[]{
        {[] {},
         "Error!: You Cannot Tag this Check as Cleared since you have not check the option button as "
         "Cleared!"},
        {[&] { entry.negotiated = true, entry.status = ""; },
         "Error!: You have checked Cleared Box Option you cannot have check status other than Cleared!"},
        {[&] { entry.negotiated = false; }, "Error!: Please Select Check Status!"},
        {[&] { entry.status = "cash"; },
         "Error!: You have to check Cash Payment option since you have selected "
         "Cash Payment in Check Status!"},
        {[&] { entry.status = "Account closed"; }, "Error!: Invalid Check Date!"},
        {[&] { entry.date = "4/2/26"; }, "done"}};
    for (const auto& step : steps) {
        step.mend();
        EXPECT_EQ(said(updateCheck(store, book(), found, entry).outcome), step.text);
    }
    EXPECT_THAT(stored(book()), ElementsAre("B2 | Account Closed | 0"));
    EXPECT_TRUE(updateCheck(store, book(), found, entry).overtaken) << "it is another check by now";
    tickCash(entry, true);
    EXPECT_TRUE(isDone(updateCheck(store, book(), *findCheck(store, book(), 1), entry).outcome));
    EXPECT_THAT(stored(book()), ElementsAre(" | Cash | -1"));
    EXPECT_EQ(keys("Cash Payment"), "1");
    store.run(QString("DELETE FROM %1").arg(book().table));
    EXPECT_EQ(said(updateCheck(store, book(), found, entry).outcome),
              std::string("Error!: ") + book().notFound);
}

// What a person does, and then status, cash and cleared.
TEST(CheckEntryControls, MoveEachOther) {
    using Act = std::function<void(CheckStatusEntry&)>;
    const auto choose = [](const char* status) -> Act {
        return [=](auto& entry) { chooseStatus(entry, status); };
    };
    const Act cash = [](auto&entry) { tickCash(entry, true); },
              noCash = [](auto&entry) { tickCash(entry, false); };
    const Act clear = [](auto& entry) { tickNegotiated(entry, true); };
    const Act unclear = [](auto& entry) { tickNegotiated(entry, false); };
    const struct {
        QList<Act> acts;
        const char* leaves;
    } cases[]{{{choose("Cash")}, " Cash 1 1"},
              {{choose("Cleared")}, "B1 Cleared 0 1"},
              {{clear}, "B1 Cleared 0 1"},
              {{clear, unclear}, "B1 Pending 0 0"},
              {{clear, choose("DAUD")}, "B1 DAUD 0 0"},
              {{clear, choose("Pending")}, "B1 Pending 0 0"},
              {{cash, noCash}, " Pending 0 0"},
              {{choose("DAIF"), unclear}, "B1 DAIF 0 0"}};
    for (const auto& row : cases) {
        CheckStatusEntry entry{"B1", "03/20/2026", "Pending", false, false};
        for (const Act& act : row.acts) act(entry);
        EXPECT_EQ(
            QString("%1 %2 %3 %4").arg(entry.number, entry.status).arg(entry.cash).arg(entry.negotiated),
            row.leaves);
        EXPECT_EQ(entry.number.isEmpty(), entry.date.isEmpty());
    }
}
}  // namespace
