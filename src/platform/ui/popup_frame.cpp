#include "platform/ui/popup_frame.h"

#include <QEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QToolButton>

static constexpr int border = 1;

namespace {
// The cross that closes a popup, in the colour of the title.
class Cross : public QToolButton {
  public:
    using QToolButton::QToolButton;

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        QColor color = palette().color(QPalette::Active, QPalette::HighlightedText);
        painter.setPen(QPen(color, 2));
        const QRectF cross =
            QRectF(rect()).adjusted(width() * 0.3, height() * 0.3, width() * -0.3, height() * -0.3);
        painter.drawLine(cross.topLeft(), cross.bottomRight());
        painter.drawLine(cross.topRight(), cross.bottomLeft());
        color.setAlphaF(0.2F);
        if (underMouse()) painter.fillRect(rect(), color);
    }
};
}  // namespace

void PopupFrame::dress(QWidget* window) {
    window->setWindowFlag(Qt::FramelessWindowHint);
    new PopupFrame(window);
}

PopupFrame::PopupFrame(QWidget* window) : QWidget(window), close_(new Cross(this)) {
    setObjectName("popupFrame");
    close_->setObjectName("popupClose");
    close_->setAccessibleName("Close");
    close_->setFocusPolicy(Qt::NoFocus);
    close_->setAttribute(Qt::WA_Hover);
    connect(close_, &QToolButton::clicked, window, &QWidget::close);
    window->setContentsMargins(border, titleHeight(), border, border);
    window->installEventFilter(this);
    lower();
    place();
}

int PopupFrame::titleHeight() const { return fontMetrics().height() * 7 / 4; }

void PopupFrame::place() {
    setGeometry(parentWidget()->rect());
    const int size = titleHeight() - 2 * border;
    close_->setGeometry(width() - size - 2 * border, border, size, size);
}

bool PopupFrame::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Resize) place();
    if (event->type() == QEvent::WindowTitleChange) update();
    return QWidget::eventFilter(watched, event);
}

void PopupFrame::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    const QColor color = palette().color(QPalette::Active, QPalette::Highlight);
    const QRect title(0, 0, width(), titleHeight());
    painter.fillRect(title, color);
    painter.setPen(color);
    painter.drawRect(rect().adjusted(0, 0, -1, -1));
    painter.setPen(palette().color(QPalette::Active, QPalette::HighlightedText));
    const QRect room = title.adjusted(title.height() / 3, 0, -title.height(), 0);
    painter.drawText(room, Qt::AlignVCenter | Qt::TextSingleLine,
                     fontMetrics().elidedText(parentWidget()->windowTitle(), Qt::ElideRight, room.width()));
}

void PopupFrame::mousePressEvent(QMouseEvent* event) {
    grip_ = event->position().y() < titleHeight() ? event->globalPosition().toPoint() - window()->pos()
                                                  : QPoint();
}

void PopupFrame::mouseMoveEvent(QMouseEvent* event) {
    if (!grip_.isNull()) window()->move(event->globalPosition().toPoint() - grip_);
}
