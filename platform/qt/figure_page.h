#pragma once

#include "platform/drawing.h"
#include "platform/page.h"

/// A figure in pixels of the design as a page in millimetres, 96 pixels to the inch.
Page pageOf(const Figure& figure);
