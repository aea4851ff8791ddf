#pragma once
#include "reports/frame/section_formatter.h"

// Where the bands of a report go, from the first to the last: the pages of a run, or a control of another
// report.
class BandPaper {
  public:
    virtual ~BandPaper() = default;
    // A line of the report, and the headings of the groups that begin with it, from the outer to the inner.
    virtual void putLine(std::vector<FormattedSection> headings, FormattedSection line) = 0;
    virtual void putFooter(FormattedSection footer) = 0;
};

// What one footer sums up of the rows before it.
class Sums {
  public:
    Sums(const ReportSection* footer, const ReportLayout& layout);
    // A line, or a group's heading, that has been printed. fields: null for one that prints nothing.
    void add(const ReportSection* band, const ReportSource& row, const SectionFields* fields);
    void clear();
    Currency of(const ReportControl& field) const;

  private:
    struct Sum {
        const ReportControl* field;
        const ReportSection* band;  // whose figures or columns it adds up
        qsizetype figure;           // its place in the band; -1: it sums up a column
        Currency value;
    };
    static Sum sumOf(const ReportControl& field, const ReportLayout& layout);
    static Currency summand(const Sum& sum, const ReportSource& row, const SectionFields* fields);
    std::vector<Sum> sums_;
};

// Walks the rows of a report, keeps its groups and sums, and formats its bands. The pages get the styles.
class ReportWalk {
  public:
    ReportWalk(const ReportLayout& layout, ReportSource& rows, ReportEvents events, RunTexts texts,
               ReportPages& styles);

    // To the first row; false: there is none.
    bool begin();
    // A row is still to be printed.
    bool hasRow() const { return hasRow_ && !hasEnded_; }
    void takeRow(BandPaper& paper);
    qsizetype rowsTaken() const { return rowsTaken_; }
    // The footers of what is still open, when no row is left.
    void finish(BandPaper& paper);
    // False when the report ended before its first line: there is nothing of it.
    bool hasPrinted() const { return hasPrinted_; }

    // A band that stands outside the rows.
    struct PageOf {
        qsizetype number, count;  // a count of 0: not known yet
    };
    FormattedSection format(SectionKind kind, PageOf page);
    // The headings of the groups that run on, for the top of a page.
    std::vector<FormattedSection> repeatedHeadings() const;

  private:
    struct Group {
        const ReportSection* header;
        const ReportSection* footer;
        Sums sums;
        bool isOpen = false;
        QString value;
        FormattedSection heading;            // as printed
        std::optional<SectionFields> begun;  // of a heading that is not summed up yet
    };
    struct Band {
        const Sums* sums;
        PageOf page;
    };
    void addGroup(SectionKind header, SectionKind footer);
    std::size_t firstChangedGroup() const;
    void closeGroups(std::size_t outermost, BandPaper& paper);
    std::vector<FormattedSection> openGroups(std::size_t outermost);
    void openGroup(Group& group);
    void printRow(std::vector<FormattedSection> headings, BandPaper& paper);
    void sumUp(const ReportSection* line, const SectionFields* fields);
    void addToSums(const ReportSection* band, const SectionFields* fields);
    FormattedSection format(const ReportSection* section, const Band& band = {});
    SectionFields filled(const ReportSection& section, const Band& band);
    void fill(const ReportControl& control, SectionFields::State& state, const Band& band) const;
    QString ownText(const ReportControl& control, PageOf page) const;

    const ReportLayout& layout_;
    ReportSource& rows_;
    ReportEvents events_;
    RunTexts texts_;
    ReportPages& styles_;
    std::vector<Group> groups_;
    Sums reportSums_;
    qsizetype rowsTaken_ = 0;
    bool hasRow_ = false, hasEnded_ = false, hasPrinted_ = false;
};
