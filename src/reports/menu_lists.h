#pragma once

// The reports that the Report menu prints without a selection screen: what has come due of the checks
// received and issued, and the contacts. Registered as windows by their names; with no row a box says so.
void registerMenuLists();
