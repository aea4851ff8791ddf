#pragma once

// Registers the screens of this floor by name.
void registerReportScreens();
