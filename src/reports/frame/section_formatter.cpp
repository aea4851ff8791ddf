#include "reports/frame/section_formatter.h"

#include "platform/masks.h"
#include "reports/frame/report_fonts.h"
#include "reports/frame/report_strip.h"

#include <QFontMetrics>
#include <QStringView>

#include <algorithm>
#include <cstring>
#include <stdexcept>

qsizetype SectionFields::indexOf(QAnyStringView name) const {
    for (qsizetype i = 0; i < section_->controls.size(); ++i)
        if (name == section_->controls[i].name) return i;
    throw std::logic_error(("the section has no control " + name.toString()).toStdString());
}

QString SectionFields::shownText(qsizetype control) const {
    const State& state = states_[control];
    return state.showsFigure ? figureText(*state.figure, section_->controls[control].mask) : state.text;
}

QString figureText(Currency figure, const char* mask) {
    return mask ? formatNumber(figure, mask) : figure.toPlainText();
}

QString fieldText(const ReportSource& row, const QString& column, const char* mask) {
    if (row.isNull(column)) return {};
    if (!mask) return row.text(column);
    if (std::strpbrk(mask, "hs")) return formatDateTime(row.dateTime(column), mask);
    if (std::strpbrk(mask, "ymd")) return formatDate(row.date(column), mask);
    return formatNumber(row.currency(column), mask);
}

namespace {
using State = SectionFields::State;

bool hasRoomForLines(const ReportControl& control) { return control.height > control.style.points * 20 * 2; }

bool readsAsFigure(const QString& text) {
    const auto isDigit = [](QChar c) { return c >= '0' && c <= '9'; };
    const auto belongs = [&](QChar c) { return isDigit(c) || QStringView(u",.-+()%/: ").contains(c); };
    return std::ranges::any_of(text, isDigit) && std::ranges::all_of(text, belongs);
}

// A number or a date: what has a mask, sums up or stands at the right, and reads as one; and what is whole.
bool isFigure(const ReportControl& control, const QString& text) {
    const bool mayBe =
        control.mask || control.shows != Shows::Column || (control.style.alignment & Qt::AlignRight);
    return control.isWhole || (mayBe && readsAsFigure(text));
}

PageItem itemOf(const ReportControl& control, const QString& text, int top, int height, quint16 style) {
    PageItem item;
    item.kind = control.kind == ControlKind::Field ? ControlKind::Label : control.kind;
    item.place = QRect(control.left, top, control.width, height);
    item.text = text;
    item.style = style;
    item.isFigure = isFigure(control, text);
    return item;
}

// Lays the controls from the top down: what grows moves what stands wholly below it.
class Layer {
  public:
    Layer(const ReportSection& section, SectionFields& fields, ReportPages& styles)
        : section_(section),
          fields_(fields),
          styles_(styles),
          band_(++styles.bands),
          firstControl_(styles.controlsOf(section)) {}

    FormattedSection lay() {
        formatted_.height = section_.height;
        for (const qsizetype index : fromTheTop()) layControl(index);
        formatted_.lastRow = besideWholes(formatted_, formatted_.lastRow);
        return std::move(formatted_);
    }

  private:
    struct Growth {
        int top, bottom;  // of the control as it is declared
        int by;           // how far what stands below it moves
    };

    QList<qsizetype> fromTheTop() const {
        QList<qsizetype> order(section_.controls.size());
        for (qsizetype i = 0; i < order.size(); ++i) order[i] = i;
        std::stable_sort(order.begin(), order.end(), [this](qsizetype a, qsizetype b) {
            return section_.controls[a].top < section_.controls[b].top;
        });
        return order;
    }

    int shiftAt(int top) const {
        int shift = 0;
        for (const Growth& growth : growths_)
            if (growth.bottom <= top && growth.top < top) shift = std::max(shift, growth.by);
        return shift;
    }

    void layControl(qsizetype index) {
        const ReportControl& control = section_.controls[index];
        const State& state = fields_.state(index);
        if (!state.isVisible) return;
        const int top = control.top + shiftAt(control.top);
        const int height = state.subReport ? laySubReport(control, *state.subReport, top)
                                           : layItem(control, fields_.shownText(index), top);
        const int grown = top - control.top + height - control.height;
        if (grown > 0) growths_ += {control.top, control.top + control.height, grown};
        // The space that the section keeps below its lowest control stays.
        formatted_.height = std::max(formatted_.height, section_.height + std::max(0, grown));
    }

    int layItem(const ReportControl& control, const QString& text, int top) {
        if (text.isEmpty() && control.kind != ControlKind::Line) return control.height;
        if (control.shows != Shows::Column && text.contains(laterText))
            formatted_.withoutCount.push_back(formatted_.items.size());
        const quint16 style = styles_.styleNumber(control.style);
        const bool isText = control.kind == ControlKind::Label || control.kind == ControlKind::Field;
        const bool mayBreak = isText && (control.grows || hasRoomForLines(control));
        if (mayBreak && !isFigure(control, text)) return layLines(control, text, top, style, control.width);
        // As few lines as the narrowest letters need.
        const int broadest = control.width * 100 / leastPercent(control.style);
        if (control.isWhole && !readsAsFigure(text) && !fitsOneLine(control, text, broadest))
            return layLines(control, text, top, style, broadest);
        add(itemOf(control, text, top, control.height, style), control);
        return control.height;
    }

    static bool fitsOneLine(const ReportControl& control, const QString& text, int width) {
        return QFontMetrics(fontInTwips(control.style)).horizontalAdvance(text) <= width;
    }

    // Each line is an item of its own, so that a long text breaks between pages; what does not grow ends with
    // its control, unless it is whole, and moves nothing.
    int layLines(const ReportControl& control, const QString& text, int top, quint16 style, int width) {
        const int height = lineHeight(control.style);
        int used = 0;
        const QStringList lines = brokenLines(control.style, text, width);
        if (lines.size() > 1) styles_.wholeTexts[ReportPages::textKey(band_, numberOf(control))] = text;
        for (const QString& line : lines) {
            const bool mayEnd = !control.grows && !control.isWhole;
            if (mayEnd && used + height > control.height && used > 0) break;
            add(itemOf(control, line, top + used, height, style), control);
            used += height;
        }
        return control.grows ? std::max(control.height, used) : control.height;
    }

    quint16 numberOf(const ReportControl& control) const {
        return static_cast<quint16>(firstControl_ + (&control - section_.controls.constData()));
    }

    void add(PageItem item, const ReportControl& control) {
        item.band = band_;
        item.control = numberOf(control);
        formatted_.items.push_back(std::move(item));
    }

    int laySubReport(const ReportControl& control, ReportJobParts& run, int top) {
        ++styles_.depth;
        FormattedSection strip = stripOf(run, styles_);
        --styles_.depth;
        for (PageItem& item : strip.items) {
            item.place.translate(control.left, top);
            formatted_.items.push_back(std::move(item));
        }
        for (const Span& whole : strip.wholes)
            formatted_.wholes.push_back({whole.top + top, whole.bottom + top});
        formatted_.lastRow = std::max(formatted_.lastRow, strip.lastRow + top);
        return strip.height;
    }

    const ReportSection& section_;
    SectionFields& fields_;
    ReportPages& styles_;
    const quint32 band_;
    const quint16 firstControl_;
    FormattedSection formatted_;
    QList<Growth> growths_;
};
}  // namespace

int besideWholes(const FormattedSection& section, int cut) {
    for (int above = 0; above != cut;) {
        above = cut;
        for (const Span& whole : section.wholes)
            if (whole.top > 0 && whole.top < cut && whole.bottom > cut) cut = whole.top;
    }
    return cut;
}

FormattedSection layOut(const ReportSection& section, SectionFields& fields, ReportPages& styles) {
    return Layer(section, fields, styles).lay();
}
