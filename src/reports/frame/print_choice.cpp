#include "reports/frame/print_choice.h"

#include <QRadioButton>
#include <QVBoxLayout>

namespace {
struct Choice {
    const char* name;
    const char* caption;
};
constexpr Choice choices[] = {{"optPreview", "Print Preview"},
                              {"optPrinter", "Send to Printer"},
                              {"optRTF", "Rich Text Format"},
                              {"optASCII", "ASCII Text Format"}};
}  // namespace

PrintChoice::PrintChoice(ReportTarget target) {
    setObjectName("fraChoice");
    setTitle("Print Choice :");
    auto* layout = new QVBoxLayout(this);
    for (const Choice& choice : choices) {
        auto* option = new QRadioButton(choice.caption);
        option->setObjectName(choice.name);
        layout->addWidget(option);
        options_ += option;
    }
    setTarget(target);
}

ReportTarget PrintChoice::target() const {
    const auto chosen = std::ranges::find_if(options_, [](auto* option) { return option->isChecked(); });
    return static_cast<ReportTarget>(chosen - options_.begin());
}

void PrintChoice::setTarget(ReportTarget target) { options_[static_cast<int>(target)]->setChecked(true); }

void PrintChoice::setExportsVisible(bool visible) {
    for (const ReportTarget target : {ReportTarget::RichText, ReportTarget::PlainText})
        options_[static_cast<int>(target)]->setVisible(visible);
    const bool showsHidden = target() == ReportTarget::RichText || target() == ReportTarget::PlainText;
    if (!visible && showsHidden) setTarget(ReportTarget::Preview);
}
