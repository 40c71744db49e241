#pragma once

#include "extras/pictures.h"
#include "window/form_window.h"

#include <QImage>

/// The window of frmPicture: a picture that fills it at any size. A click or a key sends the user back to
/// work.
class PictureWindow : public FormWindow {
public:
    explicit PictureWindow(MainWindow& main);

protected:
    void presentMore() override;
    void paintEvent(QPaintEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QImage picture_; ///< the one on show; null if its file cannot be read
};
