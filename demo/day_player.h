#pragma once
#include "demo/day_boxes.h"
#include "demo/day_script.h"

#include <QStringList>
#include <functional>

class QWidget;

// What a script tells did not happen, or something happened that it does not tell.
struct DayFault : std::runtime_error {
    explicit DayFault(const QString& text) : std::runtime_error(text.toStdString()) {}
};

// Plays a trading day on the real screens with keys and menu items, as a person would, from the login on.
// The program has to be started (Main) over the firm's folder before.
class DayPlayer {
  public:
    using Say = std::function<void(const QString& line)>;
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
    QWidget* openEntry(const DayStep& step);
    void chooseContact(QWidget* entry, const DayStep& step);
    void addLines(QWidget* entry, const DayStep& step);
    QWidget* openLineDialog(QWidget* entry);
    void typeLine(QWidget* dialog, const DayLine& line);
    void addLine(QWidget* entry, QWidget* dialog, const DayLine& line);
    void refuseLine(QWidget* entry, QWidget* dialog, const DayLine& line);
    void closeLineDialog();
    void save(QWidget* entry, const DayStep& step);
    void savePaper(const DayStep& step, const QString& number);
    void endOfDay();
    void logOff();

    void act(const QList<DayBoxes::Expected>& boxes, const std::function<void()>& action);
    static void require(bool happened, const QString& fault);
    void pick(QWidget* picker, const QString& column, const QString& value);
    void closeScreens();
    void picture(const QString& name);

    QString folder_;
    Say say_;
    DayBoxes boxes_;
    int line_ = 0;  // of the script
    int pictureNumber_ = 0;
    QStringList saved_;
};
