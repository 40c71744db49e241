#pragma once

/// Places the controls of the diagram window for its size: ScaleWidth and ScaleHeight of the record, and the
/// dendrogram beside the diagram while it is on show. A unit of the diagram keeps its width on the screen, so
/// a wider window shows more columns. The strip of names is as high as the longest of them needs.
void layOutDiagramWindow();

/// Of the taxon names, pixels.
float longestName();

constexpr int dendrogramWidth = 3000; ///< twips
