#pragma once

#include "platform/page.h"

#include <QImage>
#include <QScrollArea>

/// The page of a figure as it will be printed, on a desk. Fits the window until the user zooms: Ctrl and the
/// wheel, or the window's zoom buttons.
class FigurePreview : public QScrollArea {
public:
    FigurePreview();

    /// `page` must stay as long as the preview.
    void showPage(const Page& page);
    /// In percent of the true size; 0 fits the whole page in.
    void setZoom(double percent);
    double zoom() const { return zoom_; }
    /// The zoom in force, in percent, also while the page fits in.
    double shownZoom() const;

protected:
    void resizeEvent(QResizeEvent*) override;
    bool viewportEvent(QEvent*) override;

private:
    void layOut();

    class Sheet;
    Sheet* sheet_;
    double zoom_ = 0;
};
