#include "diagram/figures.h"

#include "core/messages.h"
#include "core/sheet_name.h"
#include "core/sheet_state.h"
#include "diagram/dendrogram.h"
#include "diagram/diagram_form.h"
#include "diagram/diagram_layout.h"
#include "diagram/diagram_view.h"
#include "platform/picture_format.h"
#include "platform/ports.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace {

Figure figureOf(const Surface& surface)
{
    return {surface.width,
            surface.height,
            {{0, 0, surface.width, surface.height, surface.scale, surface.picture}}};
}

/// The name of the sheet with the ending of a picture.
std::string proposedName()
{
    const std::string& path = sheet.SheetPath;
    if (!baseName(path))
        return "diagram.svg";
    return fileBeside(path, ".svg");
}

} // namespace

Figure figureInView(DiagramPart part)
{
    const DiagramForm& f = frmDiagram;
    return figureOf(part == DiagramPart::diagram ? f.Picture1
                    : part == DiagramPart::names ? f.Picture4
                                                 : f.Picture2);
}

Figure wholeFigure()
{
    const DiagramForm& f = frmDiagram;
    constexpr float margin = 10;
    DiagramView view = diagramView();
    view.scroll = 0;
    // To the end of the last column, and room for the last name.
    const float units =
        (f.plot.ColumnLeft[taxonSlots] + f.plot.LastColumnWidth + static_cast<float>(f.plot.ColumnGap)) *
            view.zoom +
        15;
    view.scale.width = units;
    const float width = units * pixelsPerUnit;
    const float names = std::ceil(longestName()) + 16;
    const float height = f.Picture1.height;

    Figure figure;
    figure.width = width + 2 * margin;
    float top = margin;
    if (!f.notice.empty()) { // a figure must not mislead where it goes, either
        const Letters letters{f.notice, 10.4F};
        const float wide = ports.pictures->textWidth(letters);
        constexpr float line = 16;
        Drawing notice;
        notice.text(0, 0, letters, RGB(0, 0, 0));
        figure.panels.push_back({margin, top, wide, line, {0, 0, wide, line}, std::move(notice)});
        figure.width = std::max(figure.width, wide + 2 * margin);
        top += line;
    }
    figure.panels.push_back(
        {margin, top, width, names, {0, 0, width, names}, planNames(f.plot, view, names - 8)});
    figure.panels.push_back(
        {margin, top + names, width, height, view.scale, planDiagram(f.plot, diagramRows(), view)});
    figure.height = top + names + height + margin;
    if (f.picture2Visible) {
        const Surface& dendrogram = f.Picture2;
        constexpr float gap = 8; // a curve that ends at the edge must not run on in a branch
        const float left = margin + width + gap;
        figure.panels.push_back(
            {left, top + names, dendrogram.width, height, dendrogram.scale, dendrogram.picture});
        figure.width = std::max(figure.width, left + dendrogram.width + margin);
    }
    return figure;
}

void mnuSavePicture_Click()
{
    const auto path = ports.dialogs->choosePictureToSave(proposedName());
    if (!path)
        return;
    const auto format = pictureFormatOf(*path);
    if (!format || *format == PictureFormat::tiff) {
        ports.dialogs->ask("Please end the file name with .svg, .pdf or .png.", "Error", Buttons::ok,
                           Icon::exclamation);
        return;
    }
    if (!ports.files->write(*path, ports.pictures->encode(wholeFigure(), *format)))
        tellFileInUse();
}
