#pragma once

// What a payment, received or made, can stand at.
namespace check {
inline constexpr const char* pending = "Pending";
inline constexpr const char* cleared = "Cleared";
inline constexpr const char* cash = "Cash";
}  // namespace check
