#include "reports/checks/check_choice.h"

#include "foundation/setting_files.h"

#include <QCheckBox>
#include <QVBoxLayout>

static QCheckBox* box(const char* name, const char* caption, QBoxLayout* layout) {
    auto* result = new QCheckBox(caption);
    result->setObjectName(name);
    layout->addWidget(result);
    return result;
}

// A click on one clears the other.
static void pair(QCheckBox* one, QCheckBox* other) {
    QObject::connect(one, &QCheckBox::clicked, other, [other] { other->setChecked(false); });
    QObject::connect(other, &QCheckBox::clicked, one, [one] { one->setChecked(false); });
}

CheckChoice::CheckChoice() : QGroupBox("Print Parameters :") {
    setObjectName("fraParameters");
    auto* column = new QVBoxLayout(this);
    optChecks = box("optChecks", "Print Checks", column);
    optVoucher = box("optVoucher", "Print Voucher", column);
    column->addSpacing(6);
    optCommercial = box("optCommercial", "Commercial Checks", column);
    optPersonal = box("optPersonal", "Personal Checks", column);
    pair(optChecks, optVoucher);
    pair(optCommercial, optPersonal);
}

void CheckChoice::startAnew() {
    const CheckBook setting = defaultCheckBook();
    optCommercial->setChecked(setting == CheckBook::Commercial);
    optPersonal->setChecked(setting == CheckBook::Personal);
    optChecks->setChecked(false);
    optVoucher->setChecked(false);
}

std::optional<Fault> CheckChoice::fault() const {
    const auto error = [](const char* text) { return Fault{exclamation("Error!", text), "optChecks"}; };
    if (optChecks->isChecked() && optVoucher->isChecked())
        return error("You cannot Print Checks and Voucher at the Same Time!");
    if (!optChecks->isChecked() && !optVoucher->isChecked())
        return error("Please Select What To Print! Check or Voucher!");
    return std::nullopt;
}

bool CheckChoice::printsChecks() const { return optChecks->isChecked(); }

CheckBook CheckChoice::book() const {
    return optPersonal->isChecked() ? CheckBook::Personal : CheckBook::Commercial;
}

std::optional<Fault> CheckChoice::keepBook() {
    if (book() == defaultCheckBook()) return std::nullopt;
    const QString failure = WriteCheckIni(book() == CheckBook::Commercial ? "C" : "P");
    if (failure.isEmpty()) return std::nullopt;
    return Fault{exclamation("Error...", failure), "optCommercial"};
}
