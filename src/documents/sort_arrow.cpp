#include "documents/sort_arrow.h"

#include "platform/ui/form.h"
#include "platform/ui/icons.h"
#include "platform/ui/list_view.h"

#include <QHeaderView>
#include <QLabel>
#include <QScrollBar>

SortArrow::SortArrow(ListView* list)
    : QObject(list),
      lblNotice(form::label("Click on Column Header to Sort.")),
      imgArrow(new QLabel(list->header())),
      list_(list) {
    lblNotice->setObjectName("lblNotice");
    imgArrow->setObjectName("imgArrow");
    imgArrow->hide();
    list->setSortsByHeader(true);
    connect(list, &ListView::headerClicked, this, &SortArrow::show);
    connect(list->model(), &QAbstractItemModel::modelReset, this, &SortArrow::hide);
    connect(list->header(), &QHeaderView::sectionResized, this, &SortArrow::place);
    connect(list->horizontalScrollBar(), &QScrollBar::valueChanged, this, &SortArrow::place);
}

void SortArrow::show(int column) {
    column_ = column;
    list_->header()->setSortIndicatorShown(false);
    const int size = list_->fontMetrics().height();
    const bool upwards = list_->sortOrder() == Qt::AscendingOrder;
    imgArrow->setPixmap(bundledIcon(upwards ? "arrow-up" : "arrow-down").pixmap(size, size));
    imgArrow->setAccessibleName(upwards ? "Sorted upwards" : "Sorted downwards");
    imgArrow->show();
    place();
    lblNotice->hide();
}

void SortArrow::hide() {
    column_ = -1;
    imgArrow->hide();
    lblNotice->show();
}

// At the end of its heading that the text leaves free.
void SortArrow::place() {
    if (column_ < 0) return;
    const QHeaderView* header = list_->header();
    imgArrow->adjustSize();
    const int left = header->sectionViewportPosition(column_);
    const auto alignment = list_->model()->headerData(column_, Qt::Horizontal, Qt::TextAlignmentRole);
    const bool textStandsRight = alignment.value<Qt::Alignment>() & Qt::AlignRight;
    const int free = header->sectionSize(column_) - imgArrow->width() - 2;
    imgArrow->move(textStandsRight ? left + 2 : left + free, (header->height() - imgArrow->height()) / 2);
}
