#include "reports/frame/report_output.h"

#include "platform/print/bar_code.h"
#include "reports/frame/page_fonts.h"
#include "reports/frame/page_picture.h"
#include "reports/frame/page_progress.h"
#include "reports/frame/report_fonts.h"

#include <QBuffer>
#include <QPainter>
#include <QPdfWriter>
#include <QPen>
#include <QSvgRenderer>

namespace {
using reportOutput::Rendering;

void paintText(QPainter& painter, const PageItem& item, const StyleFont& font) {
    const FittedText fit = font.fitted(item);
    painter.setFont(font.font());
    const int flags = static_cast<int>(Qt::AlignLeft | Qt::AlignTop) | Qt::TextSingleLine | Qt::TextDontClip;
    const QRect place(font.leftOf(item, fit), item.place.top(), item.place.width(), item.place.height());
    if (fit.percent == 100 && fit.width <= place.width()) {
        painter.drawText(place, flags, fit.text);
        return;
    }
    painter.save();
    if (fit.width > place.width()) painter.setClipRect(item.place, Qt::IntersectClip);
    painter.translate(place.topLeft());
    painter.scale(fit.percent / 100.0, 1);
    painter.drawText(QRect(QPoint(), place.size()), flags, fit.text);
    painter.restore();
}

bool paintVectors(QPainter& painter, const PageItem& item) {
    if (!item.text.endsWith(".svg", Qt::CaseInsensitive)) return false;
    QSvgRenderer picture(item.text);
    picture.setAspectRatioMode(Qt::KeepAspectRatio);
    picture.render(&painter, item.place);
    return true;
}

void paintImage(QPainter& painter, const PageItem& item) {
    if (paintVectors(painter, item)) return;
    const QImage picture = printedPicture(item.text, item.place.size());
    if (picture.isNull()) return;
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(QRect(item.place.topLeft(), printedSize(picture, item.place.size())), picture);
}

void paintBarCode(QPainter& painter, const PageItem& item) {
    if (barCode::paint(painter, item.place, item.text)) return;
    painter.setFont(fontInTwips({Typeface::Tahoma, 7}));
    painter.drawText(item.place, Qt::AlignLeft | Qt::TextWordWrap, "No bars: too fine for this printer");
}

void paintItems(QPainter& painter, const ReportPage& page, Rendering rendering, const PageFonts& fonts) {
    painter.setPen(QPen(Qt::black, rendering == Rendering::DotMatrix ? 20 : 10));
    for (const PageItem& item : page.items) {
        if (item.kind == ControlKind::Line)
            painter.drawLine(item.place.left(), item.place.top(), item.place.left() + item.place.width(),
                             item.place.top() + item.place.height());
        else if (item.kind == ControlKind::Label)
            paintText(painter, item, fonts.of(item));
        else if (item.kind == ControlKind::BarCode)
            paintBarCode(painter, item);
        else if (rendering == Rendering::Full)
            paintImage(painter, item);
    }
}
}  // namespace

namespace reportOutput {

void paintPage(QPainter& painter, const ReportPages& pages, std::size_t page, Rendering rendering) {
    paintItems(painter, pages.pages[page], rendering, PageFonts(pages, rendering));
}

QByteArray pdf(const ReportPages& pages, Rendering rendering, Progress& progress) {
    QByteArray content;
    QBuffer buffer(&content);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setTitle(pages.caption);
    writer.setPageSize(QPageSize(QSizeF(pages.setup.paper()) / 20.0, QPageSize::Point));
    writer.setPageMargins(QMarginsF());
    writer.setResolution(1440);
    const PageFonts fonts(pages, rendering);
    QPainter painter(&writer);
    PageProgress saving(progress, "Saving", pages.pages.size());
    for (std::size_t page = 0; page < pages.pages.size(); ++page) {
        saving.setPage(page + 1);
        if (page > 0) writer.newPage();
        paintItems(painter, pages.pages[page], rendering, fonts);
    }
    painter.end();
    return content;
}

}  // namespace reportOutput
