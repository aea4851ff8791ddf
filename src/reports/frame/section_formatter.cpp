#include "reports/frame/section_formatter.h"

#include "platform/masks.h"
#include "reports/frame/report_fonts.h"
#include "reports/frame/report_strip.h"

#include <QStringView>

#include <algorithm>
#include <cstring>
#include <stdexcept>

qsizetype SectionFields::indexOf(const QString& name) const {
    for (qsizetype i = 0; i < section_->controls.size(); ++i)
        if (section_->controls[i].name == name) return i;
    throw std::logic_error(("the section has no control " + name).toStdString());
}

void SectionFields::setFigure(const QString& name, Currency figure) {
    const qsizetype control = indexOf(name);
    states_[control].figure = figure;
    states_[control].text = figureText(figure, section_->controls[control].mask);
}

QString figureText(Currency figure, const char* mask) {
    return mask ? formatNumber(figure, mask) : figure.toPlainText();
}

QString fieldText(const ReportSource& row, const QString& column, const char* mask) {
    if (row.isNull(column)) return {};
    if (!mask) return row.text(column);
    if (std::strpbrk(mask, "ymdhs")) return formatDateTime(row.dateTime(column), mask);
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
    const ControlKind kind = control.kind == ControlKind::Field ? ControlKind::Label : control.kind;
    return {kind, QRect(control.left, top, control.width, height), text, style, isFigure(control, text)};
}

// Lays the controls from the top down: what grows moves what stands wholly below it.
class Layer {
  public:
    Layer(const ReportSection& section, SectionFields& fields, ReportPages& styles)
        : section_(section), fields_(fields), styles_(styles) {}

    FormattedSection lay() {
        formatted_.height = section_.height;
        for (const qsizetype index : fromTheTop()) layControl(section_.controls[index], fields_.state(index));
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

    void layControl(const ReportControl& control, State& state) {
        if (!state.isVisible) return;
        const int top = control.top + shiftAt(control.top);
        const int height = state.subReport ? laySubReport(control, *state.subReport, top)
                                           : layItem(control, state.text, top);
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
        if (mayBreak && !isFigure(control, text)) return layLines(control, text, top, style);
        formatted_.items.push_back(itemOf(control, text, top, control.height, style));
        return control.height;
    }

    // Each line is an item of its own, so that a long text breaks between pages; what does not grow ends with
    // its control.
    int layLines(const ReportControl& control, const QString& text, int top, quint16 style) {
        const int height = lineHeight(control.style);
        int used = 0;
        for (const QString& line : brokenLines(control.style, text, control.width)) {
            if (!control.grows && used + height > control.height && used > 0) break;
            formatted_.items.push_back(itemOf(control, line, top + used, height, style));
            used += height;
        }
        return std::max(control.height, used);
    }

    int laySubReport(const ReportControl& control, ReportJobParts& run, int top) {
        FormattedSection strip = stripOf(run, styles_);
        for (PageItem& item : strip.items) {
            item.place.translate(control.left, top);
            formatted_.items.push_back(std::move(item));
        }
        for (const Span& whole : strip.wholes)
            formatted_.wholes.push_back({whole.top + top, whole.bottom + top});
        return strip.height;
    }

    const ReportSection& section_;
    SectionFields& fields_;
    ReportPages& styles_;
    FormattedSection formatted_;
    QList<Growth> growths_;
};
}  // namespace

FormattedSection layOut(const ReportSection& section, SectionFields& fields, ReportPages& styles) {
    return Layer(section, fields, styles).lay();
}
