#include "reports/read_outputs.h"

#include "reports/frame/report_output.h"
#include "reports/pdf_words.h"
#include "reports/rich_text.h"

#include <gtest/gtest.h>

namespace {
using reportOutput::Rendering;

QStringList pagesOf(const QByteArray& pdf) {
    QStringList pages;
    for (const PdfWord& word : pdfWords(pdf)) {
        while (pages.size() <= word.page) pages += QString();
        pages[word.page] += word.text + ' ';
    }
    return pages;
}

QStringList pagesOf(const RichText& rich) {
    EXPECT_EQ(rich.depth, 0);
    return rich.text.split('\f');
}
}  // namespace

const std::vector<Output>& pageOutputs() {
    static const std::vector<Output> outputs{
        {"PDF", [](const ReportPages& pages) { return pagesOf(reportOutput::pdf(pages)); }},
        {"PDF of dots",
         [](const ReportPages& pages) { return pagesOf(reportOutput::pdf(pages, Rendering::DotMatrix)); }},
        {"rich text", [](const ReportPages& pages) { return pagesOf(RichText(reportOutput::rtf(pages))); }},
        {"rich text of dots",
         [](const ReportPages& pages) {
             return pagesOf(RichText(reportOutput::rtf(pages, Rendering::DotMatrix)));
         }},
        {"text", [](const ReportPages& pages) { return reportOutput::plainText(pages).split('\f'); }}};
    return outputs;
}
