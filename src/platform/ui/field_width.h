#pragma once

class QBoxLayout;
class QWidget;

// Fields as wide as what they hold, on a small desk and on a large one alike. Characters are as wide as
// digits.
namespace field_width {
// Exactly so wide.
void fix(QWidget* field, int characters);
// In the row of a form: as much room as there is, up to so many characters. What the field leaves stays free;
// more (a button) stands behind it.
QBoxLayout* upTo(QWidget* field, int characters, QWidget* more = nullptr);

inline constexpr int date = 11;    // 12/31/2026
inline constexpr int figure = 15;  // 1,234,567,890.00
inline constexpr int price = 16;   // four decimals
inline constexpr int count = 7;    // days, a percentage
inline constexpr int number = 16;  // of a document
inline constexpr int name = 48;    // of a contact
inline constexpr int userCode = 12;
inline constexpr int remarks = 70;
}  // namespace field_width
