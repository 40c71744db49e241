#include "window/surface_view.h"

#include "platform/qt/drawing_painter.h"

#include <QPainter>

SurfaceView::SurfaceView(Surface& surface, std::function<void()> resized)
    : surface_(surface), resized_(std::move(resized))
{
    setAttribute(Qt::WA_OpaquePaintEvent);
}

void SurfaceView::present()
{
    if (pictureShown_ != surface_.pictureRevision || layerShown_ != surface_.layerRevision)
        update();
    layerShown_ = surface_.layerRevision;
}

void SurfaceView::resizeEvent(QResizeEvent*)
{
    surface_.devicePixels = static_cast<float>(devicePixelRatioF());
    if (!resized_)
        return;
    surface_.width = static_cast<float>(width());
    surface_.height = static_cast<float>(height());
    resized_();
}

void SurfaceView::paintEvent(QPaintEvent*)
{
    const QSize size = (QSizeF(width(), height()) * devicePixelRatioF()).toSize();
    if (pictureShown_ != surface_.pictureRevision || picture_.size() != size) {
        pictureShown_ = surface_.pictureRevision;
        if (picture_.size() != size)
            picture_ = QPixmap(size);
        picture_.setDevicePixelRatio(devicePixelRatioF());
        const QColor window = palette().color(QPalette::Window);
        picture_.fill(paper_ == Paper::window && window.lightness() > 128 ? window : Qt::white);
        QPainter painter(&picture_);
        paintDrawing(painter, surface_.picture, surface_.scale, rect(), LineWidth::onePixel);
    }
    QPainter painter(this);
    painter.drawPixmap(0, 0, picture_);
    paintDrawing(painter, surface_.layer, surface_.scale, rect(), LineWidth::onePixel);
    if (hasFocus()) {
        painter.setPen(QPen(palette().color(QPalette::Highlight), 2));
        painter.drawRect(rect().adjusted(1, 1, -1, -1));
    }
}
