#include "platform/ui/total_strip.h"

#include "platform/ui/form.h"
#include "platform/ui/list_view.h"

#include <QHeaderView>
#include <QLabel>
#include <QScrollBar>

TotalStrip::TotalStrip(const ListView* list, int column, QLabel* label, QWidget* total)
    : list_(list), column_(column), label_(label), total_(total) {
    label->setParent(this);
    total->setParent(this);
    form::setFont(label, 1, true);
    form::setFont(total, 1, true);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    connect(list->header(), &QHeaderView::sectionResized, this, &TotalStrip::place);
    connect(list->header(), &QHeaderView::geometriesChanged, this, &TotalStrip::place);
    connect(list->horizontalScrollBar(), &QScrollBar::valueChanged, this, &TotalStrip::place);
}

QSize TotalStrip::sizeHint() const {
    return {label_->sizeHint().width() + total_->sizeHint().width(), total_->sizeHint().height()};
}

void TotalStrip::resizeEvent(QResizeEvent*) { place(); }

// Both stay in sight when their column is scrolled out of it.
void TotalStrip::place() {
    const QSize label = label_->sizeHint();
    const int needed = form::charactersWide(total_, 16);
    const int end = list_->header()->sectionViewportPosition(column_) +
                    list_->header()->sectionSize(column_) + list_->frameWidth();
    const int right = std::clamp(end, std::min(label.width() + needed, width()), width());
    total_->setGeometry(right - needed, 0, needed, height());
    label_->setGeometry(right - needed - label.width(), 0, label.width(), height());
}
