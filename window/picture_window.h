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
    void readFavorite();

    QImage favorite_; ///< null if the file cannot be read
};
