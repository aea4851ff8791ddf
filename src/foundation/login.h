#pragma once
#include "platform/outcome.h"
#include "platform/store/connection.h"

#include <QDate>
#include <QTime>
#include <optional>

// The rules of the login, of a change of password, and of the confirmed clock.

// The full name of the user whom code and password let in, "ADMIN" for the master login; none when they do
// not. Codes compare without regard to case, passwords exactly.
std::optional<QString> ValidateLogin(Connection& store, const QString& userName, const QString& password);

// The code that a session goes by: as typed where the store finds its user by that, else as it is stored (the
// store tells ñ from Ñ, the login does not).
QString sessionUserCode(Connection& store, const QString& userName);

// True when a login with this password would fit what is stored of it. Not every password survives being
// scrambled, and blanks at its ends are not compared.
bool passwordLetsIn(const QString& password);

struct PasswordChange {
    QString userCode;
    QString oldPassword;
    QString newPassword;
    QString confirmPassword;
};
// Done: the screen closes, and its box tells what came of it (a user who is not there has nothing to
// correct).
Outcome changePassword(Connection& store, const PasswordChange& change);

// Sets the clock to what a person adjusted; what they left alone runs on. Where the machine's clock may not
// be set, the session keeps the difference, and the box that says so comes once in the life of the process.
Boxes setClock(std::optional<QDate> date, std::optional<QTime> time);
