#pragma once
#include "platform/ui/child_screen.h"
#include "reports/frame/export_file.h"
#include "reports/frame/print_fields.h"

class ComboBox;
class DateBox;
class PrintChoice;
class QBoxLayout;
class QCheckBox;
class QGroupBox;
class QRadioButton;

// A check box of a print screen.
struct PrintTick {
    const char* name;  // "chkZero"
    const char* caption;
    bool PrintRequest::*isSet;
};

// One print screen: what it asks for, and in which words. What has no caption is not asked for.
struct PrintBook {
    const char* screen;
    const char* caption;
    QList<PrintField> fields = {};
    const char* selectionFrame = nullptr;
    const char* selectionName = "cboSelection";
    QStringList selections = {};
    qsizetype opensOn = 0;  // of the selections
    QList<PrintTick> ticks = {};
    const char* optionFrame = nullptr;  // optSummary and optDetailed
    const char* periodFrame = nullptr;  // txtFrom and txtTo, which open on the present year
    const char* invalidDate = invalidDateValue;
    const char* excluded = nullptr;  // what they show while chkExclude is set; null: it is not offered
    bool printsFromPreview = false;  // the printer, too, is reached through the preview
    bool hidesReportMenu = false;
    Box noFile = noExportFile();
    std::optional<Box> badTextFile = {};  // a name was given for plain text, and is none of a file
    // What is wrong with the request, before the file is asked for.
    std::optional<Fault> (*check)(Connection& store, const PrintRequest& request);
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
    // The contact that is typed is there; a box says when none is typed.
    bool CheckContact();

  private:
    void addAsked(QBoxLayout* layout);
    QGroupBox* selectionFrame();
    QGroupBox* optionFrame();
    QGroupBox* periodFrame();
    void showPeriod();
    PrintRequest request() const;
    QString selection() const;
    void print();

    const PrintBook& book_;
    QString kind_;
    PrintFields* fields_ = nullptr;
    QList<QCheckBox*> ticks_;  // in the order of the book
    ComboBox* cboSelection = nullptr;
    QRadioButton* optSummary = nullptr;
    QRadioButton* optDetailed = nullptr;
    DateBox* txtFrom = nullptr;
    DateBox* txtTo = nullptr;
    QCheckBox* chkExclude = nullptr;
    PrintChoice* fraChoice;
};
