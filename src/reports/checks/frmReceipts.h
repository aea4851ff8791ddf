#pragma once
#include "platform/ui/child_screen.h"

class QRadioButton;
struct ChoiceWords;

// "Printer Form Setup": which printer takes reports and checks, and which check book the firm writes.
class frmReceipts : public ChildScreen {
    Q_OBJECT
  public:
    frmReceipts();
    bool receive(const ScreenArguments& arguments) override;

  private:
    // Two options, of which at most one is set.
    struct Choice {
        QRadioButton* first;
        QRadioButton* second;
        const char* firstLetter;
        const char* secondLetter;
        void set(const QString& letter) const;
        QString letter() const;
    };
    Choice addChoice(const ChoiceWords& words);
    void save();

    Choice reportPrinter_, checkPrinter_, checkBook_;
};
