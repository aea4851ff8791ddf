#pragma once
// What the bare passes are made of: a statement on the engine's handle, and counts of ten-thousandths.
#include <sqlite3.h>
#include <cmath>
#include <cstdlib>
#include <string_view>

namespace bare {
using Count = sqlite3_int64;  // of ten-thousandths

class Statement {
  public:
    Statement(sqlite3* engine, const char* text) {
        if (sqlite3_prepare_v2(engine, text, -1, &statement_, nullptr) != SQLITE_OK) std::abort();
    }
    ~Statement() { sqlite3_finalize(statement_); }
    Statement(const Statement&) = delete;
    Statement& operator=(const Statement&) = delete;
    Statement& bind(int at, Count value) {
        sqlite3_bind_int64(statement_, at, value);
        return *this;
    }
    Statement& bind(int at, std::string_view value) {
        sqlite3_bind_text(statement_, at, value.data(), static_cast<int>(value.size()), SQLITE_TRANSIENT);
        return *this;
    }
    bool next() {
        const int code = sqlite3_step(statement_);
        if (code != SQLITE_ROW && code != SQLITE_DONE) std::abort();
        if (code == SQLITE_DONE) sqlite3_reset(statement_);
        return code == SQLITE_ROW;
    }
    void run() {
        while (next()) {
        }
    }
    Count number(int column) const { return sqlite3_column_int64(statement_, column); }
    std::string_view text(int column) const {
        const auto* bytes = reinterpret_cast<const char*>(sqlite3_column_text(statement_, column));
        return bytes ? std::string_view(bytes, static_cast<size_t>(sqlite3_column_bytes(statement_, column)))
                     : std::string_view();
    }
    // The first value of the one row.
    Count value() {
        const Count found = next() ? number(0) : 0;
        sqlite3_reset(statement_);
        return found;
    }

  private:
    sqlite3_stmt* statement_ = nullptr;
};

inline Count product(Count a, Count b) {
    const Count whole = a * b;
    Count quotient = whole / 10000;
    const Count twice = 2 * std::abs(whole % 10000);
    if (twice > 10000 || (twice == 10000 && quotient % 2 != 0)) quotient += whole < 0 ? -1 : 1;
    return quotient;
}

inline double toDouble(Count count) { return static_cast<double>(count) / 10000.0; }
inline Count fromDouble(double value) { return static_cast<Count>(std::nearbyint(value * 10000.0)); }
}  // namespace bare
