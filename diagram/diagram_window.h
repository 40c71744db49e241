#pragma once

#include "diagram/diagram_form.h"
#include "diagram/paint_diagram.h"

#include <string_view>

/// The diagram window: opens beside the main window and follows the count. While sheet.DiagramOpen is false
/// its painting does nothing.

/// The entries of the main window's Diagram menu: the style, then the window. Nothing with a single sample.
void mnuDiagramStyle_Click(int style); ///< number in diagramStyles
void LaunchDiagram();

/// The window has gone, or is to go.
void closeDiagram();
/// The sheet has other samples than when the window was opened.
void reloadDiagram();
/// The samples stand in another order.
void reorderDiagram();
/// A key has been counted. A dendrogram on show is dismissed, since it does not belong to the new counts.
void refreshDiagram();
/// Another % basis, or counts that were taken back; a dendrogram on show is computed anew.
void redrawDiagram();

/// A sample has another name. With the last one that is no number the depth scale comes or goes; else the
/// rows stay where they were when the window opened.
void followSampleNames();

/// The user has made the window `width` by `height` twips large, all in all.
void frmDiagram_Resize(int width, int height);
/// Keys count in this window too; one that counted brings the main window forward.
void frmDiagram_KeyDown(int keyCode, int shift);
/// Lets go of the layer keys, but takes nothing back: an Undo key that came up here was perhaps not pressed
/// here.
void frmDiagram_KeyUp(int keyCode);

/// The window's own menus.
void frmDiagram_Style_Click(int style); ///< number in diagramStyles
void frmDiagram_Basis_Click(int basis); ///< 0 all, 1 and 2 a subtotal
void mnuDefaultDGColour_Click();
void mnuCustomDGColour_Click();
void mnuVertical_Click();
void mnuHorizontal_Click();
void mnuTaxaName_Click();
void mnuCopyDiagram_Click();
void mnuCopyTaxaName_Click();

/// For an analysis that does not exist yet.
void mnuECC_Click();
void mnuCopyEOF_Click();
void mnuSaveEOF_Click();
void mnuSaveAllEOF_Click();
void SaveEOF();
void SaveAllEOF();

/// Its controls.
void Slider1_Change(int sample);
void Slider1_Click();
void Slider2_Change(int zoom);
void HScroll1_Change(int percent);
void UpDown1_UpClick();
void UpDown1_DownClick();
void frmDiagram_Combo2_Click(std::string_view name);
void Check1_Click();
void frmDiagram_Command1_Click();
void frmDiagram_Activate();
