#include "platform/ui/field_width.h"

#include "platform/ui/form.h"

#include <QBoxLayout>
#include <QWidget>

static int widthOf(const QWidget* field, int characters) {
    return field->fontMetrics().horizontalAdvance(u'0') * characters + form::charactersWide(field, 0);
}

void field_width::fix(QWidget* field, int characters) { field->setFixedWidth(widthOf(field, characters)); }

QBoxLayout* field_width::upTo(QWidget* field, int characters, QWidget* more) {
    field->setMaximumWidth(widthOf(field, characters));
    auto* row = new QHBoxLayout;
    row->addWidget(field, 1);
    if (more) row->addWidget(more);
    row->addStretch();
    return row;
}
