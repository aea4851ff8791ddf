#pragma once
#include <QString>
#include <QStringList>
#include <vector>

class Connection;

// The schema as a list of numbered steps: step n takes a store of version n-1 to version n, whole or not at
// all. The list is registered once, before a store is opened (foundation/schema.h does).
struct SchemaStep {
    QString reason;  // one sentence: why
    QStringList statements;
    QStringList fromNothing = {};  // makes a store of this version at once: a server's begins there
};

void setSchemaSteps(std::vector<SchemaStep> steps);
const std::vector<SchemaStep>& schemaSteps();
int schemaVersion();                  // the version this program writes: the number of steps
QStringList statementsFromNothing();  // what makes the whole schema on a server, in the words of the house
void applySchemaSteps(Connection& store);  // brings an older store up; throws on a newer one
