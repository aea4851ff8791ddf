#include "reports/frame/report_pages.h"

quint16 ReportPages::styleNumber(const TextStyle& style) {
    for (std::size_t i = 0; i < styles.size(); ++i)
        if (styles[i] == style) return static_cast<quint16>(i);
    styles.push_back(style);
    return static_cast<quint16>(styles.size() - 1);
}
