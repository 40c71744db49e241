#include "window/picture_window.h"

#include "platform/ports.h"

#include <QBuffer>
#include <QFile>
#include <QImageReader>
#include <QKeyEvent>
#include <QPainter>

PictureWindow::PictureWindow(MainWindow& main) : FormWindow(main, "frmPicture", "Are you tired?", {})
{
    setAttribute(Qt::WA_OpaquePaintEvent);
    resize(864, 540);
    setMinimumSize(320, 200);
    setAccessibleDescription("A picture to rest the eyes. Esc closes it.");
}

/// The bytes of a picture file; empty if it cannot be read.
static QByteArray pictureFile(RestPicture picture)
{
    if (picture == RestPicture::imgFavorite) {
        constexpr std::size_t limit = 64u << 20;
        const auto bytes = ports.files->read(ports.programFolder + "/References/My_favorite.jpg", limit);
        return bytes ? QByteArray::fromStdString(*bytes) : QByteArray();
    }
    QFile delivered(picture == RestPicture::imgCoffee ? ":/pictures/coffee.jpg" : ":/pictures/beach.jpg");
    delivered.open(QIODevice::ReadOnly);
    return delivered.readAll();
}

void PictureWindow::presentMore()
{
    if (isVisible())
        return;
    constexpr const char* titles[] = {"Coffee", "Beach", "My favorite"};
    setWindowTitle(titles[static_cast<int>(frmPicture.shown)]);
    picture_ = QImage();
    if (!frmPicture.visible)
        return;
    QByteArray bytes = pictureFile(frmPicture.shown);
    QBuffer source(&bytes);
    QImageReader reader(&source);
    reader.setAutoTransform(true); // a camera may have been held upright
    picture_ = reader.read();
}

/// The delivered pictures may be cut at their edges to fill the window; one of the user's own is shown whole.
void PictureWindow::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.fillRect(rect(), Qt::black);
    if (picture_.isNull()) {
        painter.setPen(Qt::white);
        painter.drawText(rect(), Qt::AlignCenter,
                         "References/My_favorite.jpg is no picture that can be shown.");
        return;
    }
    const bool whole = frmPicture.shown == RestPicture::imgFavorite;
    QRectF target(
        QPointF(),
        QSizeF(picture_.size()).scaled(size(), whole ? Qt::KeepAspectRatio : Qt::KeepAspectRatioByExpanding));
    target.moveCenter(QRectF(rect()).center());
    painter.drawImage(target, picture_);
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
