#include "platform/store/like.h"

#include "platform/store/store_error.h"

#include <QChar>
#include <QString>

#include <sqlite3.h>

namespace {
constexpr bool isContinuation(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; }

int lengthOf(unsigned char lead) {
    if (lead < 0xC0) return 1;
    if (lead < 0xE0) return 2;
    return lead < 0xF0 ? 3 : 4;
}

// Walks the characters of a UTF-8 text.
class Characters {
  public:
    explicit Characters(QByteArrayView text) : at_(text.data()), end_(text.data() + text.size()) {}
    bool atEnd() const { return at_ == end_; }
    char32_t next() {
        const auto lead = static_cast<unsigned char>(*at_++);
        if (lead < 0x80) return lead;
        const int length = lengthOf(lead);
        char32_t code = lead & (0xFF >> (length + 1));
        for (int i = 1; i < length && at_ != end_ && isContinuation(*at_); ++i)
            code = (code << 6) | (static_cast<unsigned char>(*at_++) & 0x3F);
        return code;
    }

  private:
    const char* at_;
    const char* end_;
};

char32_t folded(char32_t code) {
    if (code < 0x80) return code >= U'A' && code <= U'Z' ? code + 32 : code;
    return QChar::toCaseFolded(code);
}

struct PatternStep {
    enum Kind { Letter, One, Any } kind;
    char32_t letter;
};

// The next step of a pattern.
PatternStep stepOf(Characters& pattern, char32_t escape) {
    const char32_t code = pattern.next();
    if (escape != 0 && code == escape && !pattern.atEnd())
        return {PatternStep::Letter, folded(pattern.next())};
    if (code == U'%') return {PatternStep::Any, 0};
    if (code == U'_') return {PatternStep::One, 0};
    return {PatternStep::Letter, folded(code)};
}

bool fits(const PatternStep& step, char32_t code) {
    return step.kind == PatternStep::One || (step.kind == PatternStep::Letter && step.letter == folded(code));
}

bool onlyPercents(Characters pattern, char32_t escape) {
    while (!pattern.atEnd())
        if (stepOf(pattern, escape).kind != PatternStep::Any) return false;
    return true;
}

QByteArrayView textOf(sqlite3_value* value) {
    const auto* bytes = reinterpret_cast<const char*>(sqlite3_value_text(value));
    return {bytes, bytes ? sqlite3_value_bytes(value) : 0};
}

void like(sqlite3_context* context, int count, sqlite3_value** arguments) {
    for (int i = 0; i < count; ++i)
        if (sqlite3_value_type(arguments[i]) == SQLITE_NULL) return;  // leaves the answer null
    const QByteArrayView escape = count == 3 ? textOf(arguments[2]) : QByteArrayView();
    const char32_t escapeCode = escape.isEmpty() ? 0 : Characters(escape).next();
    sqlite3_result_int(context, matchesLike(textOf(arguments[0]), textOf(arguments[1]), escapeCode));
}
}  // namespace

bool matchesLike(QByteArrayView pattern, QByteArrayView text, char32_t escape) {
    Characters steps(pattern);
    Characters letters(text);
    // Where to go on when the run after the last % does not fit: one letter further.
    Characters stepsAfterAny(pattern);
    Characters lettersAfterAny(text);
    bool sawAny = false;
    while (!letters.atEnd()) {
        if (!steps.atEnd()) {
            const PatternStep step = stepOf(steps, escape);
            if (step.kind == PatternStep::Any) {
                sawAny = true;
                stepsAfterAny = steps;
                lettersAfterAny = letters;
                continue;
            }
            if (fits(step, letters.next())) continue;
        }
        if (!sawAny) return false;
        lettersAfterAny.next();
        steps = stepsAfterAny;
        letters = lettersAfterAny;
    }
    return onlyPercents(steps, escape);
}

void overrideLike(sqlite3* engine) {
    constexpr int flags = SQLITE_UTF8 | SQLITE_DETERMINISTIC | SQLITE_INNOCUOUS;
    for (const int arguments : {2, 3})
        if (sqlite3_create_function_v2(engine, "like", arguments, flags, nullptr, like, nullptr, nullptr,
                                       nullptr) != SQLITE_OK)
            throw StoreError(StoreError::general, QString::fromUtf8(sqlite3_errmsg(engine)));
}
