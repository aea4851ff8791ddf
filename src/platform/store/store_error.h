#pragma once
#include <QString>
#include <exception>

// Every failure of the store: the system's number and the engine's text.
class StoreError : public std::exception {
  public:
    static constexpr int refused = -2147467259;       // duplicate key, or a refused delete
    static constexpr int noCurrentRow = 3021;         // no row, or the row has gone
    static constexpr int typeMismatch = -2147217913;  // what was typed does not fit the column
    static constexpr int busy = -2147217887;          // another workstation held the store too long
    static constexpr int general = -2147217900;       // anything else

    StoreError(int number, const QString& text) : number_(number), text_(text), utf8_(text.toUtf8()) {}
    int number() const { return number_; }
    const QString& text() const { return text_; }
    const char* what() const noexcept override { return utf8_.constData(); }

  private:
    int number_;
    QString text_;
    QByteArray utf8_;
};
