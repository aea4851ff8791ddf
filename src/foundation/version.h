#pragma once
#include <QString>

// The program's version as people read it: major, a point, then minor and revision with no point between
// them: 1, 5, 2 reads "1.52".
QString versionText();
