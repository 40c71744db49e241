#include "platform/qt/page_files.h"

#include "platform/qt/page_painter.h"
#include "platform/tiff.h"

#include <QBuffer>
#include <QCoreApplication>
#include <QCryptographicHash>
#include <QHash>
#include <QPainter>
#include <QPdfWriter>
#include <algorithm>
#include <cmath>

namespace {

constexpr double mmPerInch = 25.4;

QSize pixelsOf(const Page& page, int dotsPerInch)
{
    return {std::max(1, qRound(page.width / mmPerInch * dotsPerInch)),
            std::max(1, qRound(page.height / mmPerInch * dotsPerInch))};
}

void paintOn(QImage& image, const Page& page, int dotsPerInch, int top)
{
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    painter.translate(0, -top);
    painter.scale(dotsPerInch / mmPerInch, dotsPerInch / mmPerInch);
    paintPage(painter, page);
}

/// Fonts stand in a PDF file in the order of a hash table, which is another one in each run otherwise.
struct SteadyHashes {
    SteadyHashes() { QHashSeed::setDeterministicGlobalSeed(); }
    ~SteadyHashes() { QHashSeed::resetRandomGlobalSeed(); }
    Q_DISABLE_COPY(SteadyHashes)
};

/// Overwrites what stands between `begin` and `end`, both left alone, without a change of length: a PDF file
/// counts its bytes.
void overwrite(QByteArray& bytes, const char* begin, char end, const QByteArray& with)
{
    const qsizetype from = bytes.lastIndexOf(begin);
    if (from < 0)
        return;
    const qsizetype first = from + static_cast<qsizetype>(qstrlen(begin));
    const qsizetype last = bytes.indexOf(end, first);
    for (qsizetype i = first; i < last; ++i)
        bytes[i] = i - first < with.size() ? with[i - first] : ' ';
}

/// The time of writing and the name made by chance go: a file tells what it shows, not when it was made.
void forgetTheClock(QByteArray& pdf)
{
    overwrite(pdf, "/CreationDate (", ')', "D:20000101000000Z");
    overwrite(pdf, "/ModDate (", ')', "D:20000101000000Z");
    const qsizetype trailer = pdf.lastIndexOf("/ID");
    if (trailer < 0)
        return;
    const qsizetype end = pdf.indexOf(']', trailer);
    bool inside = false;
    for (qsizetype i = trailer; i < end; ++i) {
        if (pdf[i] == '<' || pdf[i] == '>')
            inside = pdf[i] == '<';
        else if (inside)
            pdf[i] = '0';
    }
    const QByteArray name = QCryptographicHash::hash(pdf, QCryptographicHash::Md5).toHex();
    qsizetype digit = 0;
    for (qsizetype i = trailer; i < end; ++i) {
        if (pdf[i] == '<' || pdf[i] == '>') {
            inside = pdf[i] == '<';
            digit = 0;
        } else if (inside) {
            pdf[i] = name[digit++ % name.size()];
        }
    }
}

} // namespace

QByteArray pagesPdf(std::span<const Page> pages)
{
    const SteadyHashes steady;
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    QPdfWriter writer(&buffer);
    constexpr int resolution = 1200;
    writer.setResolution(resolution);
    writer.setPageMargins({});
    writer.setTitle(QString::fromStdString(pages.front().title));
    writer.setCreator(QCoreApplication::applicationName() + " " + QCoreApplication::applicationVersion());
    QPainter painter;
    for (const Page& page : pages) {
        writer.setPageSize(
            QPageSize(QSizeF(page.width, page.height), QPageSize::Millimeter, {}, QPageSize::ExactMatch));
        if (painter.isActive())
            writer.newPage();
        else
            painter.begin(&writer);
        painter.resetTransform();
        painter.scale(resolution / mmPerInch, resolution / mmPerInch);
        paintPage(painter, page);
    }
    painter.end();
    forgetTheClock(bytes);
    return bytes;
}

QImage pageImage(const Page& page, int dotsPerInch)
{
    QImage image(pixelsOf(page, dotsPerInch), QImage::Format_RGB32);
    if (image.isNull())
        return image;
    paintOn(image, page, dotsPerInch, 0);
    image.setDotsPerMeterX(qRound(dotsPerInch / mmPerInch * 1000));
    image.setDotsPerMeterY(qRound(dotsPerInch / mmPerInch * 1000));
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

std::string pageTiff(const Page& page, int dotsPerInch)
{
    const QSize size = pixelsOf(page, dotsPerInch);
    constexpr int stripHeight = 1024;
    QImage strip;
    return tiffImage(size.width(), size.height(), dotsPerInch, [&](int row, std::uint8_t* rgb) {
        const int top = row / stripHeight * stripHeight;
        if (row == top) {
            strip = QImage(size.width(), std::min(stripHeight, size.height() - top), QImage::Format_RGB32);
            paintOn(strip, page, dotsPerInch, top);
        }
        const auto* const pixels = reinterpret_cast<const QRgb*>(strip.constScanLine(row - top));
        for (int x = 0; x < size.width(); ++x) {
            *rgb++ = static_cast<std::uint8_t>(qRed(pixels[x]));
            *rgb++ = static_cast<std::uint8_t>(qGreen(pixels[x]));
            *rgb++ = static_cast<std::uint8_t>(qBlue(pixels[x]));
        }
    });
}
