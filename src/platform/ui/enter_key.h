#pragma once
#include <Qt>

// Enter, of the letters or of the number block.
inline bool isEnterKey(int key) { return key == Qt::Key_Return || key == Qt::Key_Enter; }
