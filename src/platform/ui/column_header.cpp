#include "platform/ui/column_header.h"

#include "platform/ui/desk_memory.h"
#include "platform/ui/form.h"
#include "platform/ui/icons.h"
#include "platform/ui/list_look.h"

#include <QApplication>
#include <QIcon>
#include <QPainter>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionHeader>

ColumnHeader::ColumnHeader(QWidget* list) : QHeaderView(Qt::Horizontal, list) {
    setHighlightSections(false);
    connect(this, &QHeaderView::sectionResized, this,
            [this](int section, int, int width) { sectionSized(section, width); });
    connect(this, &QHeaderView::sectionCountChanged, this, &ColumnHeader::fit);
}

void ColumnHeader::setColumnWidth(int section, int characters) {
    const int texts = form::charactersWide(this, characters) + 2 * list_look::padding(this);
    resizeSection(section, std::max(texts, sectionSizeHint(section)));
}

void ColumnHeader::setNameColumn(int section) {
    names_ = section;
    namesWidth_ = section < 0 ? 0 : sectionSize(section);
    fit();
}

int ColumnHeader::neededLength() const {
    return names_ < 0 ? length() : length() - sectionSize(names_) + namesWidth_;
}

QSize ColumnHeader::listSize(const QAbstractScrollArea* list) const {
    constexpr int rows = 10, mostCharacters = 132;
    const int columns =
        neededLength() + list->verticalScrollBar()->sizeHint().width() + 2 * list->frameWidth();
    return {std::min(columns, form::charactersWide(list, mostCharacters)), rows * list_look::rowHeight(list)};
}

// The column of names takes what the others leave, and gives up to a third of its width where that keeps all
// of them in sight.
void ColumnHeader::fit() {
    if (names_ < 0 || names_ >= count() || fitting_) return;
    const QScopedValueRollback<bool> fitting(fitting_, true);
    const int least = std::max(namesWidth_ * 2 / 3, sectionSizeHint(names_));
    const int free = viewport()->width() - (length() - sectionSize(names_));
    resizeSection(names_, free >= least ? free : std::max(namesWidth_, least));
}

// A column that a person draws wider or narrower.
void ColumnHeader::sectionSized(int section, int width) {
    if (fitting_) return;
    if (section == names_) namesWidth_ = width;
    fit();
    // By hand, not by the program.
    if (QApplication::mouseButtons().testFlag(Qt::LeftButton)) keepWidths();
}

void ColumnHeader::keepWidths() {
    QStringList widths;
    for (int section = 0; section < count(); ++section)
        widths += QString::number(section == names_ ? namesWidth_ : sectionSize(section));
    desk_memory::keepWidths(parentWidget(), widths);
}

// As the person left them; those of a list that has other columns by now are passed over.
void ColumnHeader::showEvent(QShowEvent* event) {
    QHeaderView::showEvent(event);
    const QStringList widths = desk_memory::keptWidths(parentWidget());
    if (widths.size() != count()) return;
    for (int section = 0; section < count(); ++section)
        resizeSection(section, std::max(widths[section].toInt(), sectionSizeHint(section)));
}

void ColumnHeader::resizeEvent(QResizeEvent* event) {
    QHeaderView::resizeEvent(event);
    fit();
}

bool ColumnHeader::standsRight(int section) const {
    const QVariant alignment = model()->headerData(section, orientation(), Qt::TextAlignmentRole);
    return alignment.value<Qt::Alignment>() & Qt::AlignRight;
}

QSize ColumnHeader::sectionSizeFromContents(int section) const {
    const QString text = model()->headerData(section, orientation(), Qt::DisplayRole).toString();
    const int arrow = fontMetrics().height();
    return {fontMetrics().horizontalAdvance(text) + 2 * list_look::padding(this) + arrow,
            list_look::rowHeight(this)};
}

QRect ColumnHeader::arrowWithin(const QRect& rect, int section) const {
    const int size = fontMetrics().height();
    const int edge = list_look::padding(this) / 2;
    const int left = standsRight(section) ? rect.left() + edge : rect.right() + 1 - edge - size;
    return {left, rect.top() + (rect.height() - size) / 2, size, size};
}

QRect ColumnHeader::arrowRect(int section) const {
    return arrowWithin({sectionViewportPosition(section), 0, sectionSize(section), height()}, section);
}

void ColumnHeader::paintSection(QPainter* painter, const QRect& rect, int section) const {
    QStyleOptionHeaderV2 option;
    initStyleOption(&option);
    initStyleOptionForIndex(&option, section);
    option.rect = rect;
    painter->save();
    style()->drawControl(QStyle::CE_HeaderSection, &option, painter, this);
    const bool sorted = isSortIndicatorShown() && sortIndicatorSection() == section;
    if (sorted)
        bundledIcon(sortIndicatorOrder() == Qt::AscendingOrder ? "arrow-up" : "arrow-down")
            .paint(painter, arrowWithin(rect, section));
    const int padding = list_look::padding(this);
    const QString text = model()->headerData(section, orientation(), Qt::DisplayRole).toString();
    const auto side = standsRight(section) ? Qt::AlignRight : Qt::AlignLeft;
    painter->setFont(font());
    painter->setPen(palette().color(QPalette::ButtonText));
    painter->drawText(rect.adjusted(padding, 0, -padding, 0), side | Qt::AlignVCenter | Qt::TextSingleLine,
                      text);
    painter->restore();
}
