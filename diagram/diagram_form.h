#pragma once

#include "diagram/coniss.h"
#include "diagram/diagram_styles.h"
#include "diagram/plot_data.h"
#include "platform/controls.h"
#include "platform/drawing.h"

#include <optional>

/// Where a control stands in its window, in twips.
struct Place {
    int left = 0;
    int top = 0;
    int width = 0;
    int height = 0;
};

struct ScrollBar {
    int max = 0; ///< from 0
    int smallChange = 10;
    int largeChange = 10;
    int value = 0; ///< in percent of the basis: the first that is in view
    bool visible = false;
};

struct Slider {
    int min = 0;
    int max = 10;
    int value = 5;
};

enum class DiagramPointer {
    arrow,
    sizeNS ///< on the sample line, which can be dragged
};

/// The diagram window. Places are relative to the inside of the window below its menu bar; those that the
/// resize handler sets are told there. The surfaces' scales: Picture1 has percent of the basis to the right
/// (0 at its left edge, wherever it is scrolled to) and ten units to a sample downwards (10 is the first
/// row); Picture2 has heights of merges to the right and the same rows; Picture4 pixels.
struct DiagramForm {
    // Size of the inside without menu bar and status bar, twips.
    int ScaleWidth = 0;
    int ScaleHeight = 0;
    int Width = 0; ///< of the window, twips; a handler that changes it wants another size
    int Height = 0;
    int chromeWidth = 0; ///< what the window is wider and higher than its inside, as the view reports it
    int chromeHeight = 0;

    Surface Picture1; ///< the diagram
    Surface Picture2; ///< the dendrogram
    Surface Picture4; ///< the taxon names
    Place picture1Place{720, 1980, 7425, 4500};
    Place picture2Place{8145, 1980, 3000, 4500};
    Place picture3Place; ///< plain strip below the diagram
    Place picture4Place{720, 0, 7425, 1980};
    Place hScroll1Place{720, 6480, 7425, 255};
    Place slider1Place{90, 1980, 330, 4500};
    Place frame3Place{8205, 1980, 1440, 780};
    Place upDown1Place{480, 1980, 240, 300};
    Place cornerPlace; ///< zoom and move boxes, right of the names
    bool picture2Visible = false;

    ScrollBar HScroll1;
    Slider Slider1{1, 2, 1}; ///< the sample that is selected
    Slider Slider2;          ///< zoom, 1 to 10; 5 is one to one
    CheckBox Check1;         ///< caption: depth of the selected sample; checked: its line is drawn
    ComboBox Combo2;         ///< all samples' names
    TextBox Text1;           ///< source of a sample move
    TextBox Text2;           ///< target of a sample move
    DiagramPointer pointer = DiagramPointer::arrow;
    std::string toolTip;                     ///< of Picture1: the taxon under the mouse
    std::optional<std::string> followedName; ///< what is typed over it is followed to the end of the visit
    std::string notice;                      ///< line above the names; empty: none

    MenuEntry mnuSub1, mnuSub2, mnuAll;
    int style = styleAtStart;             ///< number in diagramStyles
    MenuEntry mnuVertical, mnuHorizontal; ///< mnuVertical1, 2 and mnuHorizontal1, 2 show the same mark
    MenuEntry mnuTaxaName;
    MenuEntry nmuConiss;

    PlotData plot;
    MergeTable merges;
    bool ConissShown = false;  ///< `merges` belongs to this diagram
    bool ResizeHold = false;   ///< the window changes its own width: the resize handler stands still
    bool sliderFocused = true; ///< Slider1 has the focus, as far as handlers place it
    int forwardRevision = 0;   ///< goes up whenever the window is to come in front
    bool MovingSample = false; ///< the sample line is dragged with the right button: the sample moves
    bool LineDragging = false; ///< it is dragged with the left button: the selection moves
    int DiagramSample = 1;     ///< where the step buttons start from
    int PanelSample = 1;       ///< the sample that Frame3 last went to
    float DiagramScaleTop = 0;
    float DiagramScaleHeight = 1;

    DiagramForm();
};

extern DiagramForm frmDiagram;
