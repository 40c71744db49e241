#pragma once

#include "platform/page.h"

class QPainter;

/// Paints a page; the painter's unit is the millimetre, its origin the page's upper left corner. Hairlines
/// are never thinner than the page says.
void paintPage(QPainter& painter, const Page& page);

/// Width of a UTF-8 text in the letters of pages, as a multiple of their size.
double pageLetterWidth(std::string_view text, bool italic);
