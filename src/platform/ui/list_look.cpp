#include "platform/ui/list_look.h"

#include <QAbstractItemView>
#include <QEvent>
#include <QFontMetrics>
#include <QLabel>
#include <QPainter>
#include <QStyledItemDelegate>

namespace {
constexpr int paddingPoints = 6;
constexpr int pointsPerInch = 72;

// The padding itself is a measure of the style (see ProgramStyle), so that boxes in cells and clicks on them
// keep to it, too.
class CellDelegate : public QStyledItemDelegate {
  public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
        QSize size = QStyledItemDelegate::sizeHint(option, index);
        size.setHeight(option.widget ? list_look::rowHeight(option.widget) : size.height());
        return size;
    }

    // The selection of a list without the focus is a paler one.
    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        QStyleOptionViewItem cell = option;
        const bool hasFocus = option.widget && option.widget->hasFocus();
        cell.state.setFlag(QStyle::State_Active, hasFocus);
        cell.state.setFlag(QStyle::State_HasFocus, false);
        QStyledItemDelegate::paint(painter, cell, index);
    }
};

// The frame of a list tells of the focus, too; the list itself paints only its rows anew.
class FocusedFrame : public QObject {
  public:
    explicit FocusedFrame(QAbstractItemView* list) : QObject(list) { list->installEventFilter(this); }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        const bool moves = event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut;
        if (moves) static_cast<QWidget*>(watched)->update();
        return QObject::eventFilter(watched, event);
    }
};

// The text over the rows that are not there.
class EmptyNote : public QLabel {
  public:
    explicit EmptyNote(QAbstractItemView* list) : QLabel(list->viewport()), list_(list) {
        setObjectName("lblEmpty");
        setTextFormat(Qt::PlainText);
        setWordWrap(true);
        setAlignment(Qt::AlignHCenter | Qt::AlignTop);
        setAttribute(Qt::WA_TransparentForMouseEvents);
        setForegroundRole(QPalette::PlaceholderText);
        const int padding = list_look::padding(list);
        setContentsMargins(padding, list_look::rowHeight(list), padding, 0);
        const QAbstractItemModel* model = list->model();
        connect(model, &QAbstractItemModel::modelReset, this, &EmptyNote::place);
        connect(model, &QAbstractItemModel::rowsInserted, this, &EmptyNote::place);
        connect(model, &QAbstractItemModel::rowsRemoved, this, &EmptyNote::place);
        list->viewport()->installEventFilter(this);
    }

    void place() {
        setGeometry(list_->viewport()->rect());
        setVisible(list_->model()->rowCount() == 0);
    }

  protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Resize) place();
        return QLabel::eventFilter(watched, event);
    }

  private:
    QAbstractItemView* list_;
};
}  // namespace

int list_look::padding(const QWidget* list) { return list->logicalDpiX() * paddingPoints / pointsPerInch; }

int list_look::rowHeight(const QWidget* list) { return list->fontMetrics().height() * 3 / 2; }

void list_look::dress(QAbstractItemView* list) {
    list->setItemDelegate(new CellDelegate(list));
    new FocusedFrame(list);
}

void list_look::sayWhenEmpty(QAbstractItemView* list, const QString& text) {
    auto* note = static_cast<EmptyNote*>(list->viewport()->findChild<QLabel*>("lblEmpty"));
    if (!note) note = new EmptyNote(list);
    note->setText(text);
    list->setAccessibleDescription(text);
    note->place();
}

QString list_look::nothingFound(const QString& lookedFor, const QString& where) {
    const QString found = QString("Nothing found for \"%1\"").arg(lookedFor);
    return where.isEmpty() ? found + "." : QString("%1 in %2.").arg(found, where);
}
