#pragma once

/// "Are you tired?": three pictures to rest the eyes.

enum class RestPicture { imgCoffee, imgBeach, imgFavorite };

struct PictureForm {
    bool visible = false;
    RestPicture shown = RestPicture::imgCoffee;
};
extern PictureForm frmPicture;

void mnuCoffee_Click();
void mnuBeach_Click();
/// References/My_favorite.jpg, which may be replaced by a picture of one's own.
void mnuFavorite_Click();
/// A click on the picture, Esc, Enter, Space and the frame.
void closePicture();
