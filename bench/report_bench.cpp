// Measures a plain list report of many rows: its first page beside the whole, the whole as PDF beside bare
// painter output of the same lines, and what memory it takes. The limits stand in the names; by itself it
// runs 100,000 rows.
#include "platform/masks.h"
#include "reports/frame/report_fonts.h"
#include "reports/frame/report_output.h"
#include "reports/frame/report_run.h"

#include <QBuffer>
#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QPainter>
#include <QPdfWriter>

#include <benchmark/benchmark.h>
#include <malloc.h>

namespace {
// Made-up goods, row by row.
class Goods : public ReportSource {
  public:
    explicit Goods(qint64 count) : count_(count) {}
    bool next() override { return ++at_ < count_; }
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
             {summing(field("fldPageCount", "", 0, 0, 600, 225), Summary::PageCount)})}};

ReportPages wholeReport(qint64 rows) {
    Goods goods(rows);
    return runReport(goodsList, goods, {});
}

double secondsOf(const std::function<void()>& work) {
    QElapsedTimer timer;
    timer.start();
    work();
    return static_cast<double>(timer.nsecsElapsed()) * 1e-9;
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

void sizes(benchmark::internal::Benchmark* bench) {
    bench->Arg(100000)->UseManualTime()->Iterations(3)->Unit(benchmark::kMillisecond);
}

BENCHMARK(memoryOf)->Name("growth of memory (limit 100 MB)")->Apply(sizes)->Iterations(1);
BENCHMARK(firstPage)->Name("first page (limit 0.02 of the whole)")->Apply(sizes);
BENCHMARK(wholeAsPdf)->Name("layout and PDF (limit 2)")->Apply(sizes);
}  // namespace

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QGuiApplication application(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
}
