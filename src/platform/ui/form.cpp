#include "platform/ui/form.h"

#include "platform/ui/icons.h"

#include <QHBoxLayout>
#include <QStyle>

namespace form {

static QString spoken(const QString& text) {
    QString name = text;
    name.replace("&&", "\1").remove(u'&').replace(u'\1', u'&');
    while (name.endsWith(u':') || name.endsWith(u' ')) name.chop(1);
    return name.trimmed();
}

static void name(QWidget* control, const QString& text) {
    if (control->accessibleName().isEmpty()) control->setAccessibleName(spoken(text));
}

QLabel* label(const QString& text, QWidget* buddy) {
    auto* result = new QLabel;
    result->setTextFormat(Qt::PlainText);
    result->setText(text);
    if (!buddy) return result;
    result->setBuddy(buddy);
    name(buddy, text);
    return result;
}

void row(QGridLayout* grid, int row, int column, const QString& text, QWidget* control, int span) {
    // A field of a width of its own stands at the left of the place that it has.
    const bool isFixed = control->maximumWidth() < QWIDGETSIZE_MAX;
    grid->addWidget(label(text, control), row, column);
    grid->addWidget(control, row, column + 1, 1, span, isFixed ? Qt::AlignLeft : Qt::Alignment());
}

QPushButton* button(const QString& name, const QString& caption, const QString& icon) {
    auto* result = new QPushButton(caption);
    result->setObjectName(name);
    result->setAccessibleName(spoken(caption));
    result->setAutoDefault(true);  // Enter presses the button that has the focus.
    if (!icon.isEmpty()) result->setIcon(bundledIcon(icon));
    return result;
}

QToolButton* imageButton(const QString& name, const QString& icon, const QString& text) {
    auto* result = new QToolButton;
    result->setObjectName(name);
    result->setIcon(bundledIcon(icon));
    result->setToolTip(text.toHtmlEscaped());
    result->setAccessibleName(spoken(text));
    result->setFocusPolicy(Qt::StrongFocus);
    return result;
}

QGroupBox* frame(const QString& name, const QString& caption) {
    auto* result = new QGroupBox(caption);
    result->setObjectName(name);
    result->setAccessibleName(spoken(caption));
    return result;
}

QHBoxLayout* buttonsAtRight(const QList<QPushButton*>& buttons) {
    auto* result = new QHBoxLayout;
    result->addStretch();
    for (QPushButton* each : buttons) result->addWidget(each);
    return result;
}

static QString ownText(const QWidget* control) {
    if (auto* button = qobject_cast<const QAbstractButton*>(control))
        return button->text().isEmpty() ? button->toolTip() : button->text();
    if (auto* group = qobject_cast<const QGroupBox*>(control)) return group->title();
    return {};
}

void setAccessibleFromTexts(QWidget* screen) {
    for (auto* text : screen->findChildren<QLabel*>())
        if (text->buddy()) name(text->buddy(), text->text());
    for (auto* control : screen->findChildren<QWidget*>())
        if (const QString text = ownText(control); !text.isEmpty()) name(control, text);
}

void setFont(QWidget* widget, double factor, bool bold) {
    QFont font = widget->font();
    font.setPointSizeF(font.pointSizeF() * factor);
    font.setBold(bold);
    widget->setFont(font);
}

void keepReadable(QWidget* widget, std::initializer_list<QPalette::ColorRole> roles) {
    QPalette palette = widget->palette();
    for (const auto role : roles)
        palette.setColor(QPalette::Disabled, role, palette.color(QPalette::Active, role));
    widget->setPalette(palette);
}

int charactersWide(const QWidget* widget, int characters) {
    const int frame = widget->style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, widget);
    const int ends =
        2 * (frame + widget->style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, widget));
    return widget->fontMetrics().averageCharWidth() * characters + ends + widget->fontMetrics().height() / 2;
}

}  // namespace form
