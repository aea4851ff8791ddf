#pragma once

// How many characters a field of each kind of text holds. A field says when it is full; it never cuts.
namespace width {
inline constexpr int itemCode = 30;
inline constexpr int description = 100;
inline constexpr int unit = 15;  // the rule of the unit master
inline constexpr int locator = 50;
inline constexpr int contactName = 100;
inline constexpr int address = 200;
inline constexpr int telNo = 50;
inline constexpr int eMail = 100;
inline constexpr int remarks = 500;
inline constexpr int documentNo = 30;
inline constexpr int userCode = 30;
inline constexpr int number = 25;  // amounts, prices, quantities, percentages, days
inline constexpr int date = 10;
inline constexpr int search = 200;
}  // namespace width
