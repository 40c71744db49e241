#pragma once

/// The dendrogram beside the diagram.

/// "CONISS": shows it, computed anew each time, or hides it. The window grows and shrinks by its width.
void nmuConiss_Click();
/// A counted key: the dendrogram on show does not belong to the new counts. Nothing if none is on show.
void dismissDendrogram();
/// Another basis or another order of the samples: the dendrogram on show is computed and drawn anew. Nothing
/// if none is on show.
void recomputeDendrogram();
/// Draws Picture2 from the merge table; computes nothing.
void drawDendrogram();
/// "Save matrix": the merges as a file, the last one first.
void mnuSaveConiss_Click();
void mnuCopyConiss_Click();
