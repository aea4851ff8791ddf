#include "reports/frame/report_pages.h"

quint16 ReportPages::controlsOf(const ReportSection& section) {
    if (section.controls.isEmpty()) return 0;
    const ReportControl* first = section.controls.constData();
    for (const auto& [known, number] : firstControls)
        if (known == first && controls[number].control.name == first->name) return number;
    const auto number = static_cast<quint16>(controls.size());
    firstControls.emplace_back(first, number);
    for (const ReportControl& control : section.controls) controls.push_back({section.kind, control, depth});
    return number;
}

quint16 ReportPages::styleNumber(const TextStyle& style) {
    for (std::size_t i = 0; i < styles.size(); ++i)
        if (styles[i] == style) return static_cast<quint16>(i);
    styles.push_back(style);
    return static_cast<quint16>(styles.size() - 1);
}
