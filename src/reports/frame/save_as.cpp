#include "reports/frame/save_as.h"

#include "platform/ui/boxes.h"
#include "platform/ui/file_dialogs.h"
#include "platform/ui/frmStatus.h"
#include "platform/ui/hourglass.h"
#include "reports/frame/report_job.h"

#include <QFileInfo>
#include <QStringList>
#include <algorithm>
#include <stdexcept>

namespace {
constexpr const FileKind* kinds[] = {&FileKind::pdf, &FileKind::spreadsheet, &FileKind::richText,
                                     &FileKind::plainText};

// The text of a heading's control on the first page.
QString shownIn(const ReportPages& pages, const QString& name) {
    if (pages.pages.empty()) return {};
    for (const PageItem& item : pages.pages.front().items) {
        if (item.band == 0) continue;
        const PageControl& control = pages.controls[item.control];
        const bool isHeading =
            control.section == SectionKind::PageHeader || control.section == SectionKind::ReportHeader;
        if (isHeading && control.control.name == name) return item.text.trimmed();
    }
    return {};
}

QString withoutDots(QString text) {
    while (text.endsWith('.')) text.chop(1);
    return text;
}

QString filtersFrom(const FileKind& first) {
    QStringList filters{first.filter};
    for (const FileKind* kind : kinds)
        if (kind != &first) filters += kind->filter;
    return filters.join(";;");
}

struct ChosenFile {
    QString path;
    const FileKind* kind;
};

const FileKind* kindOfFilter(const QString& filter) {
    const auto* found =
        std::ranges::find(kinds, filter, [](const FileKind* kind) { return QString(kind->filter); });
    return found == std::end(kinds) ? nullptr : *found;
}

const FileKind* kindOfName(const QString& path) {
    const QString suffix = QFileInfo(path).suffix().toLower();
    const auto* found =
        std::ranges::find(kinds, suffix, [](const FileKind* kind) { return QString(kind->suffix); });
    return found == std::end(kinds) ? nullptr : *found;
}

// The kind that the dialog was set to counts where the name still bears the ending that was proposed.
ChosenFile chosenAs(const QString& path, const QString& filter, const FileKind& proposed,
                    const QString& title) {
    const FileKind* set = kindOfFilter(filter);
    const FileKind* named = kindOfName(path);
    if (set && set != &proposed && named == &proposed) {
        const QString name = path.chopped(static_cast<qsizetype>(qstrlen(named->suffix)));
        return {mayWrite(name + set->suffix, title) ? name + set->suffix : QString(), set};
    }
    const FileKind& kind = named ? *named : set ? *set : proposed;
    return {withEnding(path, title, kind), &kind};
}

QByteArray contentOf(const FileKind& kind, const ReportJob& job) {
    const Hourglass hourglass;
    frmStatus status;
    return kind.content(job, status);
}
}  // namespace

QString proposedName(const ReportPages& pages) {
    const QString title = shownIn(pages, "lblTitle");
    const QString number = shownIn(pages, "txtNumber");
    return fileName(withoutDots(title.isEmpty() ? pages.caption : title) + ' ' + number).simplified();
}

void saveReportAs(QWidget* parent, const QString& title, const FileKind& kind, const ReportJob& job) {
    QString filter;
    const QString name = proposedName(job.pages()) + '.' + kind.suffix;
    const QString path =
        desk::saveFile(parent, title, name, filtersFrom(kind), desk::WritesOver::Asked, &filter);
    if (path.isEmpty()) return;
    const ChosenFile chosen = chosenAs(path, filter, kind, title);
    if (chosen.path.isEmpty()) return;
    try {
        writeOrTell(chosen.path, contentOf(*chosen.kind, job));
    } catch (const std::runtime_error& failure) {
        showBox(notSaved(chosen.path, QString::fromUtf8(failure.what())));
    }
}
