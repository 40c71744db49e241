#include "window/picture_window.h"

#include "platform/ports.h"
#include "window/rest_scenes.h"

#include <QBuffer>
#include <QImageReader>
#include <QKeyEvent>
#include <QPainter>
#include <algorithm>

PictureWindow::PictureWindow(MainWindow& main) : FormWindow(main, "frmPicture", "Are you tired?", {})
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    resize(864, 540);
    setMinimumSize(320, 200);
    setAccessibleDescription("A picture to rest the eyes. Esc closes it.");
}

void PictureWindow::readFavorite()
{
    constexpr std::size_t limit = 64u << 20;
    const auto bytes = ports.files->read(ports.programFolder + "/References/My_favorite.jpg", limit);
    QByteArray held = bytes ? QByteArray::fromStdString(*bytes) : QByteArray();
    QBuffer source(&held);
    QImageReader reader(&source);
    reader.setAutoTransform(true); // a camera may have been held upright
    favorite_ = reader.read();
}

void PictureWindow::presentMore()
{
    if (isVisible())
        return;
    constexpr const char* titles[] = {"Coffee", "Beach", "My favorite"};
    setWindowTitle(titles[static_cast<int>(frmPicture.shown)]);
    favorite_ = QImage();
    if (frmPicture.shown == RestPicture::imgFavorite)
        readFavorite();
}

/// The drawings may be cut at their edges to fill the window; a picture of one's own is shown whole.
void PictureWindow::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.fillRect(rect(), Qt::black);
    const bool drawn = frmPicture.shown != RestPicture::imgFavorite;
    const QSizeF size = drawn ? sceneSize : QSizeF(favorite_.size());
    if (size.isEmpty()) {
        painter.setPen(Qt::white);
        painter.drawText(rect(), Qt::AlignCenter,
                         "References/My_favorite.jpg is no picture that can be shown.");
        return;
    }
    const double across = width() / size.width();
    const double down = height() / size.height();
    const double scale = drawn ? std::max(across, down) : std::min(across, down);
    painter.translate((width() - scale * size.width()) / 2, (height() - scale * size.height()) / 2);
    painter.scale(scale, scale);
    if (!drawn)
        painter.drawImage(QRectF(QPointF(0, 0), size), favorite_);
    else if (frmPicture.shown == RestPicture::imgCoffee)
        paintCoffee(painter);
    else
        paintBeach(painter);
}

void PictureWindow::mousePressEvent(QMouseEvent*)
{
    reject();
}

void PictureWindow::keyPressEvent(QKeyEvent* event)
{
    const int key = event->key();
    if (key == Qt::Key_Escape || key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space)
        reject();
}
