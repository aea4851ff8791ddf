#include "reports/checks/form_setup.h"

#include "foundation/setting_files.h"
#include "platform/parsing.h"

namespace {
constexpr const char* books[] = {"C", "P"};
constexpr const char* printers[] = {"D", "L"};

template <std::size_t Count>
QString known(const char* const (&letters)[Count], const QString& value) {
    const QString letter = trim(value).toUpper();
    if (letter.isEmpty()) return letters[0];
    return std::ranges::find(letters, letter) == std::end(letters) ? QString() : letter;
}

template <std::size_t Count>
QString chosen(const char* const (&letters)[Count], const QString& letter) {
    return letter.isEmpty() ? QString(letters[0]) : letter;
}
}  // namespace

FormSetup loadFormSetup() {
    return {known(books, SettingLine("Check.ini").value_or(QString()).left(1000)),
            known(printers, ReadCheckPrinterIni()), known(printers, ReadPrinterIni())};
}

Outcome saveFormSetup(const FormSetup& setup) {
    const struct {
        QString (*write)(const QString&);
        QString letter;
    } steps[]{{WriteCheckIni, chosen(books, setup.checkBook)},
              {WriteCheckPrinterIni, chosen(printers, setup.checkPrinter)},
              {WritePrinterIni, chosen(printers, setup.reportPrinter)}};
    for (const auto& step : steps)
        if (const QString failure = step.write(step.letter); !failure.isEmpty())
            return Fault{exclamation("Error...", failure), {}};
    return Done{{information("Thank You!", "Default Forms Settings Successfully Set!")}};
}
