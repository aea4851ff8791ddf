#pragma once
#include "platform/ui/child_screen.h"
#include "shell/company_document.h"

#include <QLayout>

class QGridLayout;
class QLabel;
class TextBox;

// The firm's name, address and logo that stand on every printed page, the tax, and the signature lines.
class frmCompanySetup : public RecordScreen {
    Q_OBJECT
  public:
    frmCompanySetup();
    bool queryUnload() override;

  public slots:
    bool SaveRecord();
    void RefreshRecord();  // as it is stored by now

  private:
    void build();
    void makeField(QGridLayout* grid, const CompanyField& field);
    QLayout* makeLogo();
    TextBox* makeBox(const QString& name);
    void load();
    CompanyProfile typed() const;
    void showLogo();
    void cmdSearch1_Click();
    void cmdClear_Click();

    QHash<QString, TextBox*> boxes_;  // by column
    StoredState loaded_;
    TextBox* txtTax;
    QLabel* imgLogo;
};
