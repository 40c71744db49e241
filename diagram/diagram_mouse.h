#pragma once

/// The mouse on the pictures of the diagram window. Places are in the scale of the picture.

enum class DiagramPicture { diagram, dendrogram };

void pictureMouseMove(DiagramPicture picture, float x, float y);
/// True if the picture's pop-up menu is to open.
bool pictureMouseDown(DiagramPicture picture, float x, float y, bool right);
void pictureMouseUp();
/// The mouse is over the window, the panel or the step buttons, or over the strip of names or free surface.
void mouseOverControls();
void mouseOverSurface();

/// Moves the sample from MoveFrom to MoveTo, with its line of the log.
void moveDiagramSample();

/// Draws the guide lines that follow the mouse. `x` counts from the diagram's beginning, not from the view's.
void TargetLine(float x, float y, DiagramPicture picture);
/// Shows source and target of a sample move in their boxes.
void showMove();
/// Fills the window's list with the samples' names.
void listDiagramSamples();
