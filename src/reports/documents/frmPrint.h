#pragma once
#include "platform/ui/child_screen.h"

#include <QLayout>

class CheckChoice;
class ListView;
class PrintChoice;
class QBoxLayout;
class QGroupBox;
class QRadioButton;
enum class ReportTarget;
struct PrintKind;

// Lists the printed or the unprinted documents of one kind, to mark and print them one after another. Opened
// with the code of a kind; without one it lists deliveries.
class frmPrint : public ChildScreen {
    Q_OBJECT
  public:
    frmPrint();
    bool receive(const ScreenArguments& arguments) override;
    bool hidesReportMenu() const override { return true; }
    QSize sizeHint() const override;
    void activated() override;
    bool queryUnload() override;

  public slots:
    void PrintRecord();
    void RefreshRecord();

  private:
    void build();
    QGroupBox* listFrame();
    QLayout* buttonRow();
    void addButton(QBoxLayout* row, const char* name, const char* icon, const char* text,
                   void (frmPrint::*command)());
    void load(const PrintKind& kind);
    void LoadGrid(const QString& flag);
    void find();
    void markAll();
    void unmarkAll();
    QStringList markedNumbers() const;
    void printMarked();
    bool readyFor(const QStringList& numbers, ReportTarget target);
    void printToFiles(const QStringList& numbers, ReportTarget target);
    bool print(const QString& number, ReportTarget target);
    bool printToFile(const QString& number, ReportTarget target);
    bool leavesKind();

    const PrintKind* kind_ = nullptr;
    ListView* lvwRecord;
    QRadioButton* optPrinted;
    QRadioButton* optUnPrinted;
    PrintChoice* fraChoice;
    CheckChoice* fraParameters;
};
