#pragma once

#include "diagram/coniss.h"
#include "platform/drawing.h"

/// Scale of the dendrogram beside a diagram of scale `diagram`: the same rows, and the height of the last
/// merge with a tenth above it as its width; 1 if that height is 0.
Scale dendrogramScale(const MergeTable& merges, const Scale& diagram);

/// The dendrogram and its scale of heights. From the last merge to the first each bracket rubs out what of
/// the later ones' stems lies inside it. Ticks that would stand closer than a pixel are left out but for the
/// first. `pixelWidth`: width of the picture on its device.
Drawing planDendrogram(const MergeTable& merges, const Scale& scale, float pixelWidth);
