#include "reports/frame/report_layout.h"

const ReportSection* ReportLayout::section(SectionKind kind) const {
    for (const ReportSection& each : sections)
        if (each.kind == kind) return &each;
    return nullptr;
}

static ReportControl placed(ControlKind kind, const QString& name, int left, int top, int width, int height) {
    ReportControl control;
    control.kind = kind;
    control.name = name;
    control.left = left;
    control.top = top;
    control.width = width;
    control.height = height;
    return control;
}

ReportControl label(const QString& name, const QString& text, int left, int top, int width, int height,
                    const TextStyle& style) {
    ReportControl control = placed(ControlKind::Label, name, left, top, width, height);
    control.text = text;
    control.style = style;
    return control;
}

ReportControl field(const QString& name, const QString& column, int left, int top, int width, int height,
                    const TextStyle& style, const char* mask) {
    ReportControl control = placed(ControlKind::Field, name, left, top, width, height);
    control.column = column;
    control.style = style;
    control.mask = mask;
    return control;
}

ReportControl growing(ReportControl control) {
    control.grows = true;
    return control;
}

ReportControl whole(ReportControl control) {
    control.isWhole = true;
    return control;
}

ReportControl showing(Shows what, ReportControl control) {
    control.shows = what;
    return control;
}

ReportControl line(const QString& name, int left, int top, int width, int height) {
    return placed(ControlKind::Line, name, left, top, width, height);
}

ReportControl image(const QString& name, int left, int top, int width, int height) {
    return placed(ControlKind::Image, name, left, top, width, height);
}

ReportControl bars(const QString& name, int left, int top, int width, int height) {
    return placed(ControlKind::BarCode, name, left, top, width, height);
}

ReportControl subReport(const QString& name, int left, int top, int width, int height) {
    return placed(ControlKind::SubReport, name, left, top, width, height);
}

ReportSection pageOfPagesFooter(const PageSetup& page) {
    return section(
        SectionKind::PageFooter, 270,
        {showing(Shows::PageOfPages, field("fldPageNo", "", 0, 45, page.printWidth, 225, centred()))});
}
