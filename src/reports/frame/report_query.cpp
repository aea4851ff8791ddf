#include "reports/frame/report_query.h"

std::optional<ReportJobParts> reportOfQuery(Connection& store, const ReportLayout& layout, const Sql& query,
                                            ReportEvents events, RunTexts texts) {
    Recordset rows = store.execute(query);
    if (rows.eof()) return {};
    return ReportJobParts{layout, std::make_unique<RecordsetSource>(std::move(rows)), std::move(events),
                          std::move(texts)};
}
