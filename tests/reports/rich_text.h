#pragma once
#include <QRegularExpression>
#include <cstring>

// Reads rich text as a word processor does, as far as our own goes: a tab is a blank, and the heads and the
// pictures are passed over.
class RichText {
  public:
    explicit RichText(const QByteArray& rtf) : rtf_(rtf) {
        while (at_ < rtf_.size()) take();
    }
    QString text;
    int depth = 0;

  private:
    void take() {
        const char c = rtf_[at_++];
        if (c == '{') ++depth;
        if (c == '}' && depth-- == skipped_) skipped_ = 0;
        if (c == '\\')
            takeControl();
        else if (!std::strchr("{}\n", c))
            add(QLatin1Char(c));
    }

    void takeControl() {
        static const QRegularExpression control("\\\\(?:([a-z]+)(-?[0-9]+)? ?|(.))");
        const auto match =
            control.match(QString::fromLatin1(rtf_.mid(at_ - 1, 40)), 0, QRegularExpression::NormalMatch,
                          QRegularExpression::AnchorAtOffsetMatchOption);
        at_ += match.capturedLength() - 1;
        const QString word = match.captured(1);
        if (word.isEmpty() && match.captured(3) != "*") add(match.captured(3)[0]);
        if (!skipped_ && QStringList{"fonttbl", "info", "shp", "header"}.contains(word)) skipped_ = depth;
        if (word == "tab") add(' ');
        if (word == "par") add('\n');
        if (word == "pagebb") add('\f');
        if (word != "u") return;
        add(QChar(static_cast<char16_t>(match.captured(2).toInt())));
        ++at_;  // what stands for the letter in an older reader
    }

    void add(QChar character) {
        if (!skipped_) text += character;
    }

    const QByteArray& rtf_;
    qsizetype at_ = 0;
    int skipped_ = 0;
};
