#pragma once
#include <QByteArray>
#include <QRectF>
#include <QString>
#include <optional>
#include <vector>

// A word of a PDF as a reader of the paper finds it.
struct PdfWord {
    int page;  // from 0
    QString text;
    QRectF place;  // in points from the corner of the paper
};

// The words of a PDF in the order of its text. Fails the test when pdftotext is not there or cannot read it.
std::vector<PdfWord> pdfWords(const QByteArray& pdf);

// The corner where a text of several words begins first; none: it is not there.
std::optional<QPointF> cornerOf(const QString& text, const std::vector<PdfWord>& words);
