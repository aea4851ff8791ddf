#include "documents/sort_arrow.h"

#include "platform/ui/column_header.h"
#include "platform/ui/form.h"
#include "platform/ui/icons.h"
#include "platform/ui/list_view.h"

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
    imgArrow->setGeometry(static_cast<const ColumnHeader*>(list_->header())->arrowRect(column_));
}
