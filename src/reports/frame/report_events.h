#pragma once
#include "reports/frame/report_layout.h"
#include "reports/frame/report_source.h"

#include <QHash>
#include <functional>
#include <memory>

struct ReportJobParts;

// The controls of one section while it is formatted: their texts, as bound, and as the report's events change
// them. A name that the section does not have is a fault of the report and throws std::logic_error.
class SectionFields {
  public:
    explicit SectionFields(const ReportSection& section)
        : section_(&section), states_(section.controls.size()) {}

    QString text(const QString& name) const { return states_[indexOf(name)].text; }
    void setText(const QString& name, const QString& text) { states_[indexOf(name)].text = text; }
    void setVisible(const QString& name, bool visible) { states_[indexOf(name)].isVisible = visible; }
    void setPicture(const QString& name, const QString& path) { states_[indexOf(name)].text = path; }
    void setSubReport(const QString& name, std::shared_ptr<ReportJobParts> run) {
        states_[indexOf(name)].subReport = std::move(run);
    }

    struct State {
        QString text;
        bool isVisible = true;
        std::shared_ptr<ReportJobParts> subReport;
    };
    // By the place of the control in its section.
    State& state(qsizetype control) { return states_[control]; }

  private:
    qsizetype indexOf(const QString& name) const;

    const ReportSection* section_;
    QList<State> states_;
};

// The figures of a report: plain functions on the row and the fields. Each runs once for each time its
// section is printed, whatever becomes of the pages afterwards. PageFooter runs when the number of pages is
// known.
using FormatEvent = std::function<void(const ReportSource& row, SectionFields& fields)>;
using ReportEvents = QHash<int, FormatEvent>;  // by SectionKind
inline int on(SectionKind kind) { return static_cast<int>(kind); }

// What a run of a report is made of. Within a control of another report its detail lines are walked where the
// control stands.
struct ReportJobParts {
    const ReportLayout& layout;
    std::unique_ptr<ReportSource> rows;
    ReportEvents events;
};
