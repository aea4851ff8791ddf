#pragma once
#include "demo/day_boxes.h"

#include <QList>
#include <QString>
#include <functional>
#include <stdexcept>

class QWidget;

// What a script tells did not happen, or something happened that it does not tell.
struct DayFault : std::runtime_error {
    explicit DayFault(const QString& text) : std::runtime_error(text.toStdString()) {}
};

// A paper that comes up after the save of a document.
struct DayPaper {
    QString question;  // how its question begins
    QString preview;   // the name of its preview
    QString table, key;
};

// The hands and eyes of a played day: what all its steps do at the screens. Throws DayFault.
class DayHand {
  public:
    using Say = std::function<void(const QString& line)>;
    // Pictures of the screens it passes and the printed papers go into the folder; empty: they are not kept.
    DayHand(const QString& folder, Say say);

    void say(const QString& line) const { say_(line); }
    // Does something that brings these boxes, and no other.
    void act(const QList<DayBoxes::Expected>& boxes, const std::function<void()>& action);
    static void require(bool happened, const QString& fault);
    // The journal of a menu item, and a new document from it.
    QWidget* openEntry(const QString& menuItem, const QString& journal, const QString& entry);
    void chooseContact(QWidget* entry, const QString& contact);
    // Goes down the picker to the row with this value and picks it.
    void pick(QWidget* picker, const QString& column, const QString& value);
    // Esc closes the line dialog; a line that was not taken is given up.
    void closeDialog(const QString& name);
    // Ctrl+S, with the questions for the papers; the number of the document.
    QString save(QWidget* entry, const QList<DayPaper>& papers, bool prints, const QString& saved);
    // The open screens, one after the other, by the key for it.
    void closeScreens();
    void picture(const QString& name);

  private:
    void savePaper(const DayPaper& paper, const QString& number);

    QString folder_;
    Say say_;
    DayBoxes boxes_;
    int pictureNumber_ = 0;
};
