#pragma once

#include "platform/page.h"

#include <QByteArray>
#include <QImage>

/// A page as files and as an image; the same page gives the same bytes.

QByteArray pagePdf(const Page& page);
QImage pageImage(const Page& page, int dotsPerInch);
QByteArray pngOf(const QImage& image);
/// Painted strip by strip, so a large page needs no more memory than its file.
std::string pageTiff(const Page& page, int dotsPerInch);
