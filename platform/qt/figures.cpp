#include "platform/qt/figures.h"

#include "platform/page_svg.h"
#include "platform/qt/drawing_painter.h"
#include "platform/qt/figure_page.h"
#include "platform/qt/text.h"

#include <QBuffer>
#include <QClipboard>
#include <QFontMetricsF>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>
#include <QPainter>
#include <QPdfWriter>
#include <QScreen>
#include <algorithm>
#include <cmath>

namespace {

constexpr double pointsPerPixel = 0.75; // 96 pixels of the design to an inch

void paintFigure(QPainter& painter, const Figure& figure, LineWidth lines)
{
    painter.fillRect(QRectF(0, 0, figure.width, figure.height), Qt::white);
    for (const Figure::Panel& panel : figure.panels) {
        const QRectF place(panel.left, panel.top, panel.width, panel.height);
        painter.save();
        painter.setClipRect(place);
        paintDrawing(painter, panel.drawing, panel.scale, place, lines);
        painter.restore();
    }
}

QImage figureImage(const Figure& figure)
{
    constexpr double sharp = 3; // 288 to the inch: twice or more what a screen shows
    constexpr double largest = 30000;
    const double scale = std::min({sharp, largest / figure.width, largest / figure.height});
    QImage image(static_cast<int>(std::ceil(figure.width * scale)),
                 static_cast<int>(std::ceil(figure.height * scale)), QImage::Format_RGB32);
    image.setDotsPerMeterX(static_cast<int>(96 * scale / 0.0254));
    image.setDotsPerMeterY(static_cast<int>(96 * scale / 0.0254));
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
    paintFigure(painter, figure, LineWidth::hairline);
    return image;
}

QByteArray pngOf(const QImage& image)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return bytes;
}

QByteArray figurePdf(const Figure& figure)
{
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    writer.setResolution(1200);
    writer.setPageSize(QPageSize(QSizeF(figure.width, figure.height) * pointsPerPixel, QPageSize::Point));
    writer.setPageMargins({});
    writer.setTitle("TallyStrata");
    QPainter painter(&writer);
    painter.scale(1200.0 / 96, 1200.0 / 96);
    paintFigure(painter, figure, LineWidth::hairline);
    painter.end();
    return bytes;
}

} // namespace

void QtPictures::copy(const Figure& figure)
{
    auto* const data = new QMimeData;
    const QImage image = figureImage(figure);
    data->setImageData(image);
    data->setData("image/png", pngOf(image));
    data->setData("image/svg+xml", QByteArray::fromStdString(svgText(pageOf(figure))));
    data->setData("application/pdf", figurePdf(figure));
    QGuiApplication::clipboard()->setMimeData(data);
}

std::string QtPictures::encode(const Figure& figure, PictureFormat format)
{
    if (format == PictureFormat::svg)
        return svgText(pageOf(figure));
    const QByteArray bytes = format == PictureFormat::pdf ? figurePdf(figure) : pngOf(figureImage(figure));
    return bytes.toStdString();
}

float QtPictures::textWidth(const Letters& letters)
{
    return static_cast<float>(QFontMetricsF(fontOf(letters, 96)).horizontalAdvance(shownText(letters.text)));
}
