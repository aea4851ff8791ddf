#include "support/test_server.h"

#include "foundation/schema.h"
#include "platform/store/connection.h"
#include "platform/store/place.h"
#include "platform/store/server_link.h"

#include <QCoreApplication>
#include <QStringList>
#include <memory>

#include <gtest/gtest.h>

namespace {
QString serverUri() { return qEnvironmentVariable("ZEVRIN_TEST_SERVER"); }

void tell(const QString& statement) {
    static const auto link = std::make_unique<ServerLink>(serverUri(), QString());
    link->simple(statement.toUtf8());
}

// "postgresql://user@host/postgres?host=..." with another database.
QString uriOf(const QString& database) {
    const QString uri = serverUri();
    const qsizetype start = uri.indexOf(u'/', uri.indexOf("//") + 2) + 1;
    const qsizetype end = uri.indexOf(u'?', start);
    return uri.left(start) + database + (end < 0 ? QString() : uri.mid(end));
}

// Test programs run beside each other.
QString ownName(const QString& name) {
    return QString("test_%1_%2").arg(QCoreApplication::applicationPid()).arg(name);
}

QStringList& databases() {
    static QStringList names;
    return names;
}

QString create(const QString& name, const QString& model) {
    tell(QString("CREATE DATABASE %1 TEMPLATE %2 ENCODING 'UTF8' LOCALE 'C' STRATEGY file_copy")
             .arg(name, model));
    return name;
}

void drop(const QString& name) { tell(QString("DROP DATABASE IF EXISTS %1 WITH (FORCE)").arg(name)); }

QString delivered() {
    static const QString name = [] {
        const QString made = create(ownName("delivered"), "template0");
        makeDeliveredStore(uriOf(made));
        return made;
    }();
    return name;
}

QString newDatabase(const QString& model) {
    static int count = 0;
    databases() += create(ownName(QString::number(++count)), model);
    return uriOf(databases().last());
}

class Watch : public testing::EmptyTestEventListener {
    void OnTestEnd(const testing::TestInfo&) override {
        for (const QString& name : std::exchange(databases(), {})) drop(name);
    }
    void OnTestProgramEnd(const testing::UnitTest&) override { drop(ownName("delivered")); }
};
}  // namespace

bool onTestServer() { return !serverUri().isEmpty(); }

QString newTestDatabase() { return newDatabase(delivered()); }

QString newCopyOf(const QString& uri) {
    const qsizetype start = uri.indexOf(u'/', uri.indexOf("//") + 2) + 1;
    return newDatabase(uri.mid(start, uri.indexOf(u'?', start) - start));
}

QString newEmptyDatabase() { return newDatabase("template0"); }

void refuseWrites(Connection& store, const QString& writes, const QString& condition) {
    if (!isOnServer(store)) {
        store.run(
            QString("CREATE TRIGGER refusal BEFORE %1 WHEN %2 BEGIN SELECT RAISE(ABORT, 'refused'); END")
                .arg(writes, condition));
        return;
    }
    store.run(QString("CREATE FUNCTION refuse() RETURNS trigger LANGUAGE plpgsql AS $$ BEGIN IF %1 THEN "
                      "RAISE 'refused' USING ERRCODE = 'check_violation'; END IF; RETURN NEW; END $$")
                  .arg(condition));
    store.run("CREATE TRIGGER refusal BEFORE " + writes + " FOR EACH ROW EXECUTE FUNCTION refuse()");
}

void watchTestDatabases() {
    if (onTestServer()) testing::UnitTest::GetInstance()->listeners().Append(new Watch);
}
