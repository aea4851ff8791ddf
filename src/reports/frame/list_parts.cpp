#include "reports/frame/list_parts.h"

#include "platform/clock.h"
#include "platform/masks.h"

QString runDateText() { return "Run Date :  " + formatDateTime(Clock::now()); }

ReportSection pageNumberFooter(int left) {
    return section(
        SectionKind::PageFooter, 360,
        {label("lblPage", "Page:", left, 90, 540, 225), field("fldPageNo", "", left + 540, 90, 1620, 225),
         summing(field("fldPageCount", "", left + 540, 90, 900, 225), Summary::PageCount)});
}

FormatEvent pageNumberEvent() {
    return [page = qint64(0)](const ReportSource&, SectionFields& fields) mutable {
        const qint64 pages = fields.text("fldPageCount").toLongLong();
        fields.setText("fldPageNo", formatCount(++page) + " of  " + formatCount(pages));
        fields.setVisible("fldPageCount", false);
    };
}
