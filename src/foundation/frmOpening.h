#pragma once
#include <QLayout>
#include <QWidget>

class ComboBox;
class QLabel;
class QTimer;
class TextBox;

// The login. Three failed tries end the program; a good one opens the main window.
class frmOpening : public QWidget {
    Q_OBJECT
  public:
    frmOpening();

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    QWidget* makePicture();
    QLayout* makeFields();
    QLayout* makeButtons();
    QWidget* makeLink();
    void build();
    void cmdOK_Click();
    void refuse();
    void enter(const QString& fullName);
    void lblChangePassword_Click();
    void tmrOpen_Timer();

    ComboBox* txtUserName;
    TextBox* txtPassword;
    QLabel* lblCompany;
    QLabel* lblVersion;
    QLabel* imgBird = nullptr;
    QTimer* tmrOpen;
    qint16 failures_ = 0;
    qint16 birdTop_ = 0;  // in 1/1440 inch; 0 before the first tick
};

// Shows the login, after the question that a small display brings. Its No ends the process.
void showOpening();
