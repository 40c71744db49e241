#pragma once

#include "platform/drawing.h"

#include <QPixmap>
#include <QWidget>
#include <functional>

enum class Paper {
    white,
    window ///< the window's own background, unless black letters could not be read on it
};

/// Shows a surface on paper. The picture is painted once for each of its revisions and kept; the layer
/// is painted over it.
class SurfaceView : public QWidget {
public:
    /// `resized` runs when the surface's size on the screen has changed and is noted in its record. Without
    /// it the size is the record's own.
    explicit SurfaceView(Surface& surface, std::function<void()> resized = {});

    void setPaper(Paper paper) { paper_ = paper; }
    /// Asks for a repaint if the surface has changed.
    void present();

protected:
    void resizeEvent(QResizeEvent*) override;
    void paintEvent(QPaintEvent*) override;

private:
    Surface& surface_;
    std::function<void()> resized_;
    Paper paper_ = Paper::white;
    QPixmap picture_;
    int pictureShown_ = -1;
    int layerShown_ = -1;
};
