#pragma once

#include "platform/page.h"

#include <QByteArray>
#include <QImage>
#include <span>

/// Pages as files and as images; the same page gives the same bytes.

/// At least one page; the title is that of the first.
QByteArray pagesPdf(std::span<const Page> pages);
QImage pageImage(const Page& page, int dotsPerInch);
QByteArray pngOf(const QImage& image);
/// Painted strip by strip, so a large page needs no more memory than its file.
std::string pageTiff(const Page& page, int dotsPerInch);
