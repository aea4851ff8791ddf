#pragma once
#include "documents/line_popup.h"
#include "platform/parsing.h"
#include "platform/ui/list_view.h"

// The lines of a document in their list, and the one popup that enters them. Derive from LinesOf, which knows
// the line.
class LineList : public QObject {
    Q_OBJECT
  public:
    // What a person changes here raises the screen's mblnUpdated.
    LineList(ListView* view, RecordScreen* screen);

    int count() const { return view_->rowCount(); }
    bool isSelected() const { return view_->currentRow() >= 0; }
    void clear();
    // Takes the selected line out after its question.
    void removeLine();
    // The sum of a column, leaving out texts that are no number. Throws OverflowError.
    Currency sum(int column) const;

    bool popupIsOpen() const;
    // An open popup comes first, since a line may be out of the list and in its hands: says so and brings it
    // forward. False: there is none.
    bool popupHolds();
    // Closes the popup, and the line in its hands is gone.
    void abandonPopup();

  signals:
    void changed();  // lines came, changed or went, or the popup was closed

  protected:
    ListView* view() const { return view_; }
    void hold(LinePopup* popup);
    void takeOut(int row);
    void showPopup();

  private:
    ListView* view_;
    RecordScreen* screen_;
    QPointer<LinePopup> popup_;
};

// The lines of one kind. A line gives its texts(), in the list's columns and its key first, and is made
// fromTexts().
template <class Line>
class LinesOf : public LineList, public LineOwner<Line> {
  public:
    using LineList::LineList;

    bool hasLine(const QString& key) const override { return view()->findRow(0, trim(key)) >= 0; }
    Line lineAt(int row) const override { return Line::fromTexts(view()->row(row)); }

    void addLine(const Line& line) override { insertLine(count(), line); }

    void insertLine(int row, const Line& line) override {
        view()->insertRow(row, line.texts());
        view()->scrollTo(view()->model()->index(row, 0));
        emit changed();
    }

    void replaceLine(int row, const Line& line) override {
        const QStringList texts = line.texts();
        for (int column = 0; column < texts.size(); ++column) view()->setText(row, column, texts[column]);
        emit changed();
    }

    QList<Line> all() const {
        QList<Line> lines;
        for (int row = 0; row < count(); ++row) lines.append(lineAt(row));
        return lines;
    }

    void setAll(const QList<Line>& lines) {
        QList<QStringList> rows;
        rows.reserve(lines.size());
        for (const Line& line : lines) rows.append(line.texts());
        view()->setRows(rows);
        emit changed();
    }

    using MakePopup = std::function<LinePopupOf<Line>*()>;

    // Opens the popup for a line to add.
    void startLine(const MakePopup& make) {
        LinePopupOf<Line>* popup = make();
        hold(popup);
        showPopup();
        popup->startLine();
    }

    // Opens the popup for the selected line, which leaves the list until it comes back changed.
    void changeLine(const MakePopup& make) {
        const int row = view()->currentRow();
        const Line line = lineAt(row);
        LinePopupOf<Line>* popup = make();
        hold(popup);
        takeOut(row);
        showPopup();
        popup->changeLine(line, row);
    }
};
