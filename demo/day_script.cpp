#include "demo/day_script.h"

#include "platform/parsing.h"

#include <QRegularExpression>
#include <QRegularExpressionMatch>

namespace {

class Reader {
  public:
    void read(int number, const QString& text) {
        number_ = number;
        const QString words = text.trimmed();
        if (words.isEmpty() || words.startsWith('#')) return;
        if (words == "refused")
            refuse();
        else if (text.front().isSpace())
            readPart(words);
        else
            readStep(words);
    }

    QList<DayStep> finish() {
        closeStep();
        return steps_;
    }

  private:
    [[noreturn]] void fail(const QString& text) const { throw DayScriptError(number_, text); }

    void readStep(const QString& words) {
        closeStep();
        DayStep step;
        step.number = number_;
        if (words == "end of day")
            step.kind = DayStep::EndOfDay;
        else if (words == "log off")
            step.kind = DayStep::LogOff;
        else if (words.startsWith("log in "))
            readLogIn(step, words.mid(7).split(' ', Qt::SkipEmptyParts));
        else if (words.startsWith("purchase from "))
            readDocument(step, DayStep::Purchase, words.mid(14));
        else if (words.startsWith("sale to "))
            readDocument(step, DayStep::Sale, words.mid(8));
        else if (words.startsWith("payment from "))
            readDocument(step, DayStep::Receipt, words.mid(13));
        else if (words.startsWith("voucher to "))
            readDocument(step, DayStep::Voucher, words.mid(11));
        else if (words == "checks received")
            step.kind = DayStep::ChecksReceived;
        else if (words == "checks issued")
            step.kind = DayStep::ChecksIssued;
        else
            fail(QString("no step begins like this: \"%1\"").arg(words));
        steps_ += step;
    }

    void readLogIn(DayStep& step, const QStringList& words) const {
        if (words.size() != 2) fail("log in takes a user and a password");
        step.kind = DayStep::LogIn;
        step.user = words[0];
        step.password = words[1];
    }

    static void readDocument(DayStep& step, DayStep::Kind kind, const QString& contact) {
        step.kind = kind;
        step.contact = contact.trimmed();
        step.wholesale = kind == DayStep::Sale && step.contact.endsWith(" wholesale");
        if (step.wholesale) step.contact = step.contact.chopped(10).trimmed();
    }

    bool in(const QList<DayStep::Kind>& kinds) const {
        return !steps_.isEmpty() && kinds.contains(steps_.last().kind);
    }
    bool inOrder() const { return in({DayStep::Purchase, DayStep::Sale}); }
    bool inPayment() const { return in({DayStep::Receipt, DayStep::Voucher}); }
    bool inChecks() const { return in({DayStep::ChecksReceived, DayStep::ChecksIssued}); }

    void readPart(const QString& words) {
        if (inChecks()) return readFate(words);
        if (!inOrder() && !inPayment()) fail("an indented line belongs to a document, or to checks");
        if (words == "printed")
            steps_.last().isPrinted = true;
        else if (inPayment())
            readPayment(words);
        else if (words.startsWith("remarks "))
            steps_.last().remarks = words.mid(8).trimmed();
        else
            steps_.last().lines += readLine(words);
    }

    void readFate(const QString& words) {
        if (words.startsWith("bounced "))
            steps_.last().bounced = words.mid(8);
        else if (words.startsWith("cleared "))
            steps_.last().cleared = words.mid(8).toInt();
        else
            fail(QString("nothing becomes of checks like this: \"%1\"").arg(words));
    }

    void readPayment(const QString& words) {
        static const QRegularExpression order("^order (\\d+)(?: less ([\\d.]+))?(?: with ([\\d,.]+))?$");
        static const QRegularExpression expense("^expense (\\S+) of ([\\d,.]+) for (.+)$");
        static const QRegularExpression check("^check (\\S+) of ([\\d,.]+|half|rest)(?: in (\\d+) days)?$");
        DayStep& step = steps_.last();
        if (const auto match = order.match(words); match.hasMatch())
            step.payments += {match.captured(1).toInt(),
                              {},
                              match.hasCaptured(2) ? match.captured(2) : "0",
                              match.captured(3),
                              {}};
        else if (const auto spent = expense.match(words); spent.hasMatch())
            step.payments += {0, spent.captured(1), {}, spent.captured(2), spent.captured(3)};
        else if (const auto issued = check.match(words); issued.hasMatch())
            step.checks += {issued.captured(1), issued.captured(2), issued.captured(3).toInt()};
        else if (words.startsWith("by check "))
            step.checkNo = words.mid(9);
        else if (words == "in cash")
            step.inCash = true;
        else
            fail(QString("no part of a payment: \"%1\"").arg(words));
    }

    DayLine readLine(const QString& words) const {
        static const QRegularExpression form(
            "^([\\d,.]+)(?: (delivered|served) ([\\d,.]+))? x (.+?)"
            "(?: at ([\\d,.]+))?$");
        const QRegularExpressionMatch match = form.match(words);
        if (!match.hasMatch()) fail(QString("no line of a document: \"%1\"").arg(words));
        const QString movedWord = steps_.last().kind == DayStep::Sale ? "served" : "delivered";
        if (match.hasCaptured(2) && match.captured(2) != movedWord)
            fail(QString("here the goods are %1, not %2").arg(movedWord, match.captured(2)));
        DayLine line{number_, match.captured(1), match.captured(3), match.captured(4), match.captured(5)};
        if (line.moved.isEmpty()) line.moved = line.ordered;
        for (const QString& number : {line.ordered, line.moved, line.price})
            if (!number.isEmpty() && !isNumeric(number)) fail(QString("\"%1\" is no number").arg(number));
        return line;
    }

    void refuse() {
        if (!inOrder() || steps_.last().lines.isEmpty()) fail("refused follows the line that is refused");
        steps_.last().lines.last().refused = true;
    }

    void closeStep() const {
        if ((inOrder() && steps_.last().lines.isEmpty()) || (inPayment() && steps_.last().payments.isEmpty()))
            throw DayScriptError(steps_.last().number, "a document without a line");
    }

    int number_ = 0;
    QList<DayStep> steps_;
};

}  // namespace

QList<DayStep> readDayScript(const QString& text) {
    Reader reader;
    int number = 0;
    for (const QString& line : text.split('\n')) reader.read(++number, line);
    return reader.finish();
}
