#pragma once

// The kind that a screen is opened with when it comes by itself: it stays away when it has nothing to show.
inline constexpr const char* reminderKind = "reminder";
