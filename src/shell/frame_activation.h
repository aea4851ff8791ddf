#pragma once
#include <QElapsedTimer>
#include <QObject>

class QWidget;

// Tells when a person comes back to the frame from outside the program. The end of a box, of a popup or of a
// child's own dialog is no such coming back, nor is the moment between two windows of the program.
class FrameActivation : public QObject {
    Q_OBJECT
  public:
    explicit FrameActivation(QWidget* frame);

  signals:
    void cameBack();

  private:
    void stateChanged(Qt::ApplicationState state);
    void returned();
    bool frameIsFree() const;

    QWidget* frame_;
    QElapsedTimer away_;
    bool leftFrame_ = false;
};
