#include "reports/pdf_words.h"

#include <gtest/gtest.h>
#include <QProcess>
#include <QTemporaryFile>
#include <QXmlStreamReader>
#include <algorithm>

static QByteArray boxesOf(const QByteArray& pdf) {
    QTemporaryFile file;
    EXPECT_TRUE(file.open() && file.write(pdf) == pdf.size() && file.flush());
    QProcess reader;
    reader.start("pdftotext", {"-bbox", file.fileName(), "-"});
    EXPECT_TRUE(reader.waitForFinished()) << "pdftotext (poppler-utils) is needed";
    EXPECT_EQ(reader.exitCode(), 0) << reader.readAllStandardError().constData();
    return reader.readAllStandardOutput();
}

std::vector<PdfWord> pdfWords(const QByteArray& pdf) {
    std::vector<PdfWord> words;
    int page = -1;
    for (QXmlStreamReader xml(boxesOf(pdf)); !xml.atEnd();) {
        xml.readNext();
        if (xml.isStartElement() && xml.name() == u"page") ++page;
        if (!xml.isStartElement() || xml.name() != u"word") continue;
        const auto at = [&xml](const char* name) { return xml.attributes().value(name).toDouble(); };
        const QRectF place(QPointF(at("xMin"), at("yMin")), QPointF(at("xMax"), at("yMax")));
        words.push_back({page, xml.readElementText(), place});
    }
    return words;
}

std::optional<QPointF> cornerOf(const QString& text, const std::vector<PdfWord>& words) {
    const QStringList wanted = text.split(' ');
    const auto found = std::ranges::search(words, wanted, {}, &PdfWord::text);
    return found.empty() ? std::nullopt : std::optional(found.begin()->place.topLeft());
}
