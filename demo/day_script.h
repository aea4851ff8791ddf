#pragma once
#include <QList>
#include <QString>
#include <stdexcept>

// A trading day as a text tells it, step by step. Its words are explained at the top of demo/day.txt.

struct DayLine {
    int number = 0;  // of the line in the text, from 1
    QString ordered;
    QString moved;  // served, or delivered
    QString item;
    QString price;         // empty: the one that the dialog proposes
    bool refused = false;  // expected to be refused: the stock of the day does not cover it
};

// What a receipt or a voucher pays.
struct DayPayment {
    int order = 0;           // of the contact's open orders, the oldest is 1; 0: an expense
    QString reference;       // of an expense
    QString discount = "0";  // percent
    QString amount;          // empty: all that is owed
    QString particulars;
};

struct DayCheck {
    QString number;
    QString amount;  // "half" of the voucher, or the "rest" of it
    int days = 0;    // it is dated so far ahead
};

struct DayStep {
    enum Kind { LogIn, Purchase, Sale, Receipt, Voucher, ChecksReceived, ChecksIssued, EndOfDay, LogOff };
    int number = 0;
    Kind kind = LogOff;
    QString user;
    QString password;
    QString contact;
    bool wholesale = false;
    QString remarks;
    bool isPrinted = false;  // its paper is printed when it is saved
    QList<DayLine> lines;
    QList<DayPayment> payments;
    QString checkNo;  // that a receipt is paid by; empty: in cash
    bool inCash = false;
    QList<DayCheck> checks;
    QString bounced;  // the status that the first pending check gets
    int cleared = 0;  // how many pending checks, from the end of the list
};

// A line that the script cannot mean; the text names its number.
struct DayScriptError : std::runtime_error {
    DayScriptError(int number, const QString& text)
        : std::runtime_error(QString("line %1: %2").arg(number).arg(text).toStdString()) {}
};

QList<DayStep> readDayScript(const QString& text);
