#pragma once
#include "demo/day_hand.h"
#include "demo/day_script.h"

#include <QStringList>

class QWidget;

// Plays a trading day on the real screens with keys and menu items, as a person would, from the login on.
// The program has to be started (Main) over the firm's folder before.
class DayPlayer {
  public:
    using Say = DayHand::Say;
    // Pictures of the screens it passes and the printed papers go into the folder; empty: they are not kept.
    DayPlayer(const QString& folder, Say say);

    // Throws DayFault with the number of the line in the script.
    void play(const QList<DayStep>& steps);
    // Records a purchase or a sale on its entry screen up to its save, and leaves the screen open.
    QWidget* compose(const DayStep& step);
    // The numbers of the documents, in the order they were saved.
    const QStringList& saved() const { return saved_; }

  private:
    void playStep(const DayStep& step);
    void logIn(const DayStep& step);
    void document(const DayStep& step);
    void chooseWholesale(QWidget* entry);
    void addLines(QWidget* entry, const DayStep& step);
    QWidget* openLineDialog(QWidget* entry);
    void typeLine(QWidget* dialog, const DayLine& line);
    void addLine(QWidget* entry, QWidget* dialog, const DayLine& line);
    void refuseLine(QWidget* entry, QWidget* dialog, const DayLine& line);
    void endOfDay();
    void logOff();

    DayHand hand_;
    int line_ = 0;  // of the script
    QStringList saved_;
};
