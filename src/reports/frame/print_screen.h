#pragma once
#include "platform/ui/child_screen.h"
#include "reports/frame/export_file.h"
#include "reports/frame/period_report.h"

class ComboBox;
class PrintChoice;
class QBoxLayout;
class QCheckBox;
class QGroupBox;
class QRadioButton;
class TextBox;

// One print screen: what it asks for, and in which words. What has no caption is not asked for.
struct PrintBook {
    const char* screen;
    const char* caption;
    const char* selectionFrame = nullptr;  // cboSelection, which opens on the first entry
    QStringList selections = {};
    const char* optionFrame = nullptr;  // optSummary and optDetailed
    const char* periodFrame = nullptr;  // txtFrom and txtTo, which open on the present year
    const char* excluded = nullptr;     // what they show while chkExclude is set; null: it is not offered
    bool printsFromPreview = false;     // the printer, too, is reached through the preview
    bool hidesReportMenu = false;
    Box noFile = noExportFile();
    // What is wrong with the request, before the file is asked for.
    std::optional<Fault> (*check)(const PrintRequest& request);
    // None when it finds nothing to print.
    std::optional<ReportJobParts> (*report)(Connection& store, const PrintRequest& request);
};

// The screen that a person prints a report from: its choices, its period, where it goes, OK and Cancel.
class PrintScreen : public ChildScreen {
    Q_OBJECT
  public:
    explicit PrintScreen(const PrintBook& book);
    bool receive(const ScreenArguments& arguments) override;
    bool hidesReportMenu() const override { return book_.hidesReportMenu; }
    // A report that is printed from here is never taken for one of an entry screen.
    void activated() override;

  public slots:
    void PrintRecord();

  private:
    QGroupBox* selectionFrame();
    QGroupBox* optionFrame();
    QGroupBox* periodFrame();
    void showPeriod();
    PrintRequest request() const;
    QString selection() const;
    void print();

    const PrintBook& book_;
    QString kind_;
    ComboBox* cboSelection = nullptr;
    QRadioButton* optSummary = nullptr;
    QRadioButton* optDetailed = nullptr;
    TextBox* txtFrom = nullptr;
    TextBox* txtTo = nullptr;
    QCheckBox* chkExclude = nullptr;
    PrintChoice* fraChoice;
};
