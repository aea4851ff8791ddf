// Measures a plain list report of many rows: its first page beside the whole, the whole as PDF beside bare
// painter output of the same lines, what memory it takes, and how its preview answers: to keys while the
// pages are made, to Esc, and to each letter of a search. The limits stand in the names; by itself it runs
// 100,000 rows.
#include "bench/seconds_of.h"
#include "platform/masks.h"
#include "platform/ui/screen_registry.h"
#include "reports/frame/page_view.h"
#include "reports/frame/report_fonts.h"
#include "reports/frame/report_output.h"
#include "reports/frame/report_preview.h"
#include "reports/frame/report_run.h"

#include <QApplication>
#include <QBuffer>
#include <QFile>
#include <QKeyEvent>
#include <QLineEdit>
#include <QPainter>
#include <QPdfWriter>
#include <QPointer>

#include <benchmark/benchmark.h>
#include <malloc.h>

namespace {
// Made-up goods, row by row.
class Goods : public ReportSource {
  public:
    explicit Goods(qint64 count) : count_(count) {}
    bool next() override { return ++at_ < count_; }
    qsizetype rowCount() const override { return count_; }
    void lookBack(bool looksBack) override { at_ += looksBack ? -1 : 1; }
    QString text(const QString& column) const override {
        if (column == "ItemCode") return QString::number(1000000001 + at_);
        if (column == "Unit") return at_ % 3 ? "PC" : "BOX";
        return QString("Angle bar %1 x %2 mm").arg(at_ % 977).arg(at_ % 13);
    }
    Currency currency(const QString& column) const override {
        return Currency::fromInteger(column == "Quantity" ? at_ % 5000 : 1 + at_ * 7 % 90000);
    }
    QDateTime dateTime(const QString&) const override { return {}; }
    bool isNull(const QString&) const override { return false; }

  private:
    qint64 count_;
    qint64 at_ = -1;
};

const ReportLayout goodsList{
    "prtGoods",
    "Goods...",
    letterPortrait(720, 720, 10800),
    {section(SectionKind::PageHeader, 540, {label("lblTitle", "Goods", 0, 0, 4000, 270, bold(10))}),
     section(SectionKind::Detail, 270,
             {field("txtCode", "ItemCode", 0, 0, 1500, 225),
              field("txtDescription", "Description", 1600, 0, 4000, 225),
              field("txtUnit", "Unit", 5700, 0, 700, 225, centred()),
              field("txtQuantity", "Quantity", 6500, 0, 1200, 225, rightAligned(), mask::amount),
              field("txtPrice", "Price", 7800, 0, 1500, 225, rightAligned(), mask::amount)}),
     section(SectionKind::PageFooter, 300,
             {showing(Shows::PageCount, field("fldPageCount", "", 0, 0, 600, 225))})}};

ReportPages wholeReport(qint64 rows) {
    Goods goods(rows);
    return runReport(goodsList, goods, {});
}

// The same texts at the same places on the same kind of device, with nothing around the painter.
QByteArray paintedBare(const ReportPages& pages) {
    QByteArray content;
    QBuffer buffer(&content);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setPageSize(QPageSize(QSizeF(pages.setup.paper()) / 20.0, QPageSize::Point));
    writer.setPageMargins(QMarginsF());
    writer.setResolution(1440);
    std::vector<QFont> fonts;
    for (const TextStyle& style : pages.styles) fonts.push_back(fontInTwips(style));
    QPainter painter(&writer);
    for (const ReportPage& page : pages.pages) {
        if (&page != &pages.pages.front()) writer.newPage();
        for (const PageItem& item : page.items) {
            painter.setFont(fonts[item.style]);
            painter.drawText(item.place, static_cast<int>(pages.styles[item.style].alignment), item.text);
        }
    }
    painter.end();
    return content;
}

void firstPage(benchmark::State& state) {
    double first = 0, whole = 0;
    for (auto turn : state) {
        Goods goods(state.range(0));
        ReportRun run(goodsList, goods, {});
        malloc_trim(0);  // or the first page would pay for what the turn before has freed
        const double own = secondsOf([&] { run.layOutPage(); });
        state.SetIterationTime(own);
        first += own;
        whole += own + secondsOf([&] {
                     while (run.layOutPage()) {
                     }
                 });
    }
    state.counters["whole_ms"] = whole * 1000 / static_cast<double>(state.iterations());
    state.counters["share"] = first / whole;
}

void wholeAsPdf(benchmark::State& state) {
    double own = 0, layout = 0, bare = 0;
    for (auto turn : state) {
        ReportPages pages;
        const double laid = secondsOf([&] { pages = wholeReport(state.range(0)); });
        const double painted = secondsOf([&] { benchmark::DoNotOptimize(reportOutput::pdf(pages)); });
        state.SetIterationTime(laid + painted);
        own += laid + painted;
        layout += laid;
        bare += secondsOf([&] { benchmark::DoNotOptimize(paintedBare(pages)); });
    }
    const auto turns = static_cast<double>(state.iterations());
    state.counters["layout_ms"] = layout * 1000 / turns;
    state.counters["bare_ms"] = bare * 1000 / turns;
    state.counters["ratio"] = own / bare;
}

// A line of the kernel's account of this process, in MB.
double megabytes(const QByteArray& name) {
    QFile status("/proc/self/status");
    if (!status.open(QIODevice::ReadOnly)) return 0;
    for (const QByteArray& line : status.readAll().split('\n'))
        if (line.startsWith(name)) return line.simplified().split(' ')[1].toDouble() / 1024;
    return 0;
}

// What is free goes back first, and the peak is counted anew.
double memoryBefore() {
    malloc_trim(0);
    QFile peak("/proc/self/clear_refs");
    if (peak.open(QIODevice::WriteOnly)) peak.write("5");
    return megabytes("VmRSS:");
}

void memoryOf(benchmark::State& state) {
    for (auto turn : state) {
        const double before = memoryBefore();
        state.SetIterationTime(secondsOf([&] {
            const ReportPages pages = wholeReport(state.range(0));
            state.counters["pages_mb"] = megabytes("VmHWM:") - before;
            benchmark::DoNotOptimize(reportOutput::pdf(pages));
        }));
        state.counters["with_pdf_mb"] = megabytes("VmHWM:") - before;
    }
}

// The preview as a person has it before them.
class OpenPreview {
  public:
    explicit OpenPreview(qint64 rows)
        : preview_(new ReportPreview(
              std::make_unique<ReportJob>(ReportJobParts{goodsList, std::make_unique<Goods>(rows), {}}))) {
        preview_->resize(1000, 640);
        ScreenRegistry::instance().show(preview_);
    }
    ~OpenPreview() {
        if (preview_) preview_->unload();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    OpenPreview(const OpenPreview&) = delete;
    OpenPreview& operator=(const OpenPreview&) = delete;

    bool isOpen() const { return preview_; }
    bool isComplete() const { return preview_->job().isComplete(); }
    double pagesMade() const { return preview_->job().shownPages(); }
    QWidget* pages() const { return preview_->findChild<PageView*>(); }
    QWidget* searchField() const { return preview_->findChild<QLineEdit*>("txtFind"); }

    void work() { QApplication::processEvents(); }
    // Presses a key behind all that waits already, and works until all is done and painted. The milliseconds.
    double press(QWidget* widget, int key, const QString& text = {}) {
        return 1e3 * secondsOf([&] {
                   QApplication::postEvent(widget,
                                           new QKeyEvent(QEvent::KeyPress, key, Qt::NoModifier, text));
                   QApplication::processEvents();
                   QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
               });
    }

  private:
    QPointer<ReportPreview> preview_;
};

void keysOf(benchmark::State& state) {
    double longest = 0, turns = 0;
    for (auto turn : state) {
        OpenPreview preview(state.range(0));
        for (; !preview.isComplete(); ++turns)
            longest = std::max(longest, preview.press(preview.pages(), Qt::Key_PageDown));
        state.SetIterationTime(longest / 1000);
    }
    state.counters["keys"] = turns;
}

void cancelOf(benchmark::State& state) {
    for (auto turn : state) {
        OpenPreview preview(state.range(0));
        while (!preview.isComplete() && preview.pagesMade() < 1500) preview.work();
        state.counters["pages"] = preview.pagesMade();
        double waited = preview.press(preview.pages(), Qt::Key_Escape);
        while (preview.isOpen()) waited += preview.press(preview.pages(), Qt::Key_Escape);
        state.SetIterationTime(waited / 1000);
    }
}

void searchOf(benchmark::State& state) {
    OpenPreview preview(state.range(0));
    while (!preview.isComplete()) preview.work();
    double longest = 0;
    for (auto turn : state) {
        for (const QChar letter : QString("angle bar 976 x 5"))
            longest = std::max(longest, preview.press(preview.searchField(), letter.unicode(), letter));
        for (int i = 0; i < 17; ++i)
            longest = std::max(longest, preview.press(preview.searchField(), Qt::Key_Backspace));
        state.SetIterationTime(longest / 1000);
    }
}

void sizes(benchmark::internal::Benchmark* bench) {
    bench->Arg(100000)->UseManualTime()->Iterations(3)->Unit(benchmark::kMillisecond);
}

BENCHMARK(memoryOf)->Name("growth of memory (limit 100 MB)")->Apply(sizes)->Iterations(1);
BENCHMARK(firstPage)->Name("first page (limit 0.02 of the whole)")->Apply(sizes);
BENCHMARK(keysOf)
    ->Name("longest wait of a key while pages are made (limit 100 ms)")
    ->Apply(sizes)
    ->Iterations(1);
BENCHMARK(cancelOf)->Name("cancel (limit 500 ms)")->Apply(sizes);
BENCHMARK(searchOf)->Name("longest wait of a letter of a search (limit 100 ms)")->Apply(sizes)->Iterations(1);
BENCHMARK(wholeAsPdf)->Name("layout and PDF (limit 2)")->Apply(sizes);
}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
