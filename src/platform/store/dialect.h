#pragma once
#include <QString>

// A statement of the house in the words of the engine: True and False become -1 and 0, and a column on the
// left of SET loses its table. Quoted text and comments stay as they are.
QString engineStatement(const QString& statement);
