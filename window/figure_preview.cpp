#include "window/figure_preview.h"

#include "platform/qt/page_painter.h"

#include <QPaintEvent>
#include <QPainter>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>

constexpr int desk = 12; // pixels around the page

/// The page, painted once for each plan and zoom as long as it is not enormous.
class FigurePreview::Sheet : public QWidget {
public:
    Sheet()
    {
        setObjectName("page");
        setAccessibleName("The figure as it will be printed");
    }

    const Page* page = nullptr;
    double pixelsPerMm = 3;

    void forget() { image_ = {}; }

protected:
    void paintEvent(QPaintEvent* event) override
    {
        QPainter painter(this);
        painter.fillRect(event->rect(), palette().color(QPalette::Mid));
        if (page == nullptr || page->width <= 0)
            return;
        const QRectF place(desk, desk, page->width * pixelsPerMm, page->height * pixelsPerMm);
        const qreal ratio = devicePixelRatioF();
        const QSize size = (place.size() * ratio).toSize();
        constexpr qint64 largest = 12'000'000; // pixels
        if (qint64{size.width()} * size.height() > largest) {
            painter.setClipRect(event->rect());
            painter.translate(desk, desk);
            paintScaled(painter, pixelsPerMm);
            return;
        }
        if (image_.size() != size) {
            image_ = QImage(size, QImage::Format_RGB32);
            image_.fill(Qt::white);
            QPainter onImage(&image_);
            paintScaled(onImage, pixelsPerMm * ratio);
            onImage.end();
            image_.setDevicePixelRatio(ratio);
        }
        painter.drawImage(place.topLeft(), image_);
    }

private:
    void paintScaled(QPainter& painter, double scale) const
    {
        painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
        painter.scale(scale, scale);
        paintPage(painter, *page);
    }

    QImage image_;
};

FigurePreview::FigurePreview() : sheet_(new Sheet)
{
    setObjectName("preview");
    setAccessibleName("Preview");
    setWidget(sheet_);
    setAlignment(Qt::AlignCenter);
    setBackgroundRole(QPalette::Mid);
    setFrameShape(QFrame::NoFrame);
    setFocusPolicy(Qt::StrongFocus); // the arrows scroll
}

void FigurePreview::showPage(const Page& page)
{
    sheet_->page = &page;
    sheet_->forget();
    layOut();
    sheet_->update();
}

void FigurePreview::setZoom(double percent)
{
    // What is in the middle stays there.
    const auto middle = [](const QScrollBar* bar) {
        return bar->maximum() > 0
                   ? (bar->value() + bar->pageStep() / 2.0) / (bar->maximum() + bar->pageStep())
                   : 0.5;
    };
    const double across = middle(horizontalScrollBar());
    const double down = middle(verticalScrollBar());
    constexpr double most = 800;
    zoom_ = percent <= 0 ? 0 : std::clamp(percent, 10.0, most);
    layOut();
    const auto centre = [](QScrollBar* bar, double part) {
        bar->setValue(qRound(part * (bar->maximum() + bar->pageStep()) - bar->pageStep() / 2.0));
    };
    centre(horizontalScrollBar(), across);
    centre(verticalScrollBar(), down);
}

double FigurePreview::shownZoom() const
{
    return sheet_->pixelsPerMm / (logicalDpiX() / 25.4) * 100;
}

void FigurePreview::layOut()
{
    if (sheet_->page == nullptr || sheet_->page->width <= 0)
        return;
    const Page& page = *sheet_->page;
    const QSizeF room = maximumViewportSize() - QSize(2 * desk, 2 * desk);
    sheet_->pixelsPerMm =
        zoom_ > 0 ? zoom_ / 100 * logicalDpiX() / 25.4
                  : std::max(0.5, std::min(room.width() / page.width, room.height() / page.height));
    sheet_->resize(qRound(page.width * sheet_->pixelsPerMm) + 2 * desk,
                   qRound(page.height * sheet_->pixelsPerMm) + 2 * desk);
    sheet_->update();
}

void FigurePreview::resizeEvent(QResizeEvent* event)
{
    QScrollArea::resizeEvent(event);
    layOut();
}

bool FigurePreview::viewportEvent(QEvent* event)
{
    if (event->type() == QEvent::Wheel) {
        const auto& wheel = static_cast<const QWheelEvent&>(*event);
        if ((wheel.modifiers() & Qt::ControlModifier) != 0) {
            setZoom(shownZoom() * (wheel.angleDelta().y() > 0 ? 1.25 : 0.8));
            return true;
        }
    }
    return QScrollArea::viewportEvent(event);
}
