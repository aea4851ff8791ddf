#pragma once
#include "platform/ui/child_screen.h"
#include "shell/user_document.h"

#include <optional>

class ListView;
class QCheckBox;
class QGroupBox;
class QLayout;
class TextBox;

// One user: name and password, the menus and the window rights. Opened with the user's code, or without one
// for a new user.
class frmUserDetails : public RecordScreen {
    Q_OBJECT
  public:
    frmUserDetails();
    bool receive(const ScreenArguments& arguments) override;
    bool queryUnload() override;

  public slots:
    void SaveRecord();
    void LoadMenu();

  private:
    QGroupBox* makeUserFrame();
    QGroupBox* makeUpdateFrame();
    QGroupBox* makeMenuFrame();
    QGroupBox* makeAccessFrame();
    QCheckBox* makeAccessBox(const AccessRight& right);
    TextBox* makeBox(const QString& name, int capacity);
    void clearWhatNeeds(const QString& control);
    void changed() { mblnUpdated = true; }
    bool save();
    void showUser(const UserProfile& user);
    UserProfile typed() const;

    TextBox* txtUserLogin;
    TextBox* txtFullName;
    TextBox* txtDescription;
    TextBox* txtPassword;
    TextBox* txtConfirm;
    TextBox* txtUpdatedBy;
    TextBox* txtDateUpdated;
    ListView* lvwMenu;
    QHash<QString, QCheckBox*> access_;  // by column
    std::optional<UserProfile> before_;  // as it was loaded; none: a new user
};
