#pragma once
#include <functional>

class RecordScreen;

// What a screen that keeps records asks before it leaves one that has changed: Yes saves it, and leaves when
// the save went through; No leaves; Cancel stays. True: leave. With nothing changed nothing is asked.
bool settleChanges(const RecordScreen& screen, const std::function<bool()>& save);
