#pragma once

// Ctrl+Shift+T in an amount field of any screen replaces what it holds by the last total of the tape. It
// beeps where there is none, or the field does not take it. Installed once, for the application.
void installLastTotalKey();
