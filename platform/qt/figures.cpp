#include "platform/qt/figures.h"

#include "platform/page_svg.h"
#include "platform/qt/drawing_painter.h"
#include "platform/qt/figure_page.h"
#include "platform/qt/page_files.h"
#include "platform/qt/page_painter.h"
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

void QtPictures::copy(const Page& page)
{
    auto* const data = new QMimeData;
    constexpr int dotsPerInch = 300;
    const QImage image = pageImage(page, dotsPerInch);
    data->setImageData(image);
    data->setData("image/png", pngOf(image));
    data->setData("image/svg+xml", QByteArray::fromStdString(svgText(page)));
    data->setData("application/pdf", pagesPdf({&page, 1}));
    QGuiApplication::clipboard()->setMimeData(data);
}

std::string QtPictures::encode(const Page& page, PictureFormat format, int dotsPerInch)
{
    switch (format) {
    case PictureFormat::svg:
        return svgText(page);
    case PictureFormat::pdf:
        return pagesPdf({&page, 1}).toStdString();
    case PictureFormat::png:
        return pngOf(pageImage(page, dotsPerInch)).toStdString();
    case PictureFormat::tiff:
        break;
    }
    return pageTiff(page, dotsPerInch);
}

std::string QtPictures::encodePages(const std::vector<Page>& pages)
{
    return pagesPdf(pages).toStdString();
}

double QtPictures::letterWidth(std::string_view text, bool italic)
{
    return pageLetterWidth(text, italic);
}

void QtPictures::copyText(std::string_view text)
{
    QGuiApplication::clipboard()->setText(
        QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size())));
}
