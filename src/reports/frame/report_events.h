#pragma once
#include "reports/frame/report_layout.h"
#include "reports/frame/report_source.h"

#include <QAnyStringView>
#include <QHash>
#include <functional>
#include <memory>
#include <optional>

struct ReportJobParts;

// The controls of one section while it is formatted: their texts, as bound, and as the report's events change
// them. A name that the section does not have is a fault of the report and throws std::logic_error.
class SectionFields {
  public:
    explicit SectionFields(const ReportSection& section)
        : section_(&section), states_(section.controls.size()) {}

    QString text(QAnyStringView name) const { return shownText(indexOf(name)); }
    void setText(QAnyStringView name, const QString& text) { state(indexOf(name)).show(text); }
    void setVisible(QAnyStringView name, bool visible) { states_[indexOf(name)].isVisible = visible; }
    void setPicture(QAnyStringView name, const QString& path) { setText(name, path); }
    // A computed figure, shown in the field's mask. Sums of the field's name add it up.
    void setFigure(QAnyStringView name, Currency figure) { state(indexOf(name)).show(figure); }
    // What the field sums up, or the figure that it was given; 0 where it has none.
    Currency figure(QAnyStringView name) const { return states_[indexOf(name)].figure.value_or(Currency()); }
    // The report ends: what has not been printed of its rows does not print. The row of the heading or of the
    // line that is being formatted has not.
    void endReport() { isLast_ = true; }
    void setSubReport(QAnyStringView name, std::shared_ptr<ReportJobParts> run) {
        states_[indexOf(name)].subReport = std::move(run);
    }

    struct State {
        QString text = {};
        bool isVisible = true;
        bool showsFigure = false;  // instead of the text
        std::optional<Currency> figure = {};
        std::shared_ptr<ReportJobParts> subReport = {};

        void show(const QString& shown) {
            text = shown;
            showsFigure = false;
        }
        void show(Currency shown) {
            figure = shown;
            showsFigure = true;
        }
    };
    // By the place of the control in its section.
    State& state(qsizetype control) { return states_[control]; }
    const State& state(qsizetype control) const { return states_[control]; }
    // Its text, or its figure in the control's mask.
    QString shownText(qsizetype control) const;
    const ReportSection& section() const { return *section_; }
    bool endsReport() const { return isLast_; }

  private:
    qsizetype indexOf(QAnyStringView name) const;

    const ReportSection* section_;
    QList<State> states_;
    bool isLast_ = false;
};

// The figures of a report: plain functions on the row and the fields. Each runs once for each time its
// section is printed, whatever becomes of the pages afterwards. PageFooter runs when the number of pages is
// known.
using FormatEvent = std::function<void(const ReportSource& row, SectionFields& fields)>;
using ReportEvents = QHash<int, FormatEvent>;  // by SectionKind
inline int on(SectionKind kind) { return static_cast<int>(kind); }

// What a run is started with and no row holds.
struct RunTexts {
    QHash<QString, QString> labels = {};  // by name, where the layout leaves one empty: "lblCompany"
    QString range = {};                   // "01/01/2026 To 12/31/2026"; empty: all rows
    QString processing = {};              // what the status screen says beside the count of rows
};

// What a run of a report is made of.
struct ReportJobParts {
    const ReportLayout& layout;
    std::unique_ptr<ReportSource> rows;
    ReportEvents events;
    RunTexts texts = {};
};
