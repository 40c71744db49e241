#include "extras/pictures.h"

#include "core/forms.h"

PictureForm frmPicture;
static const Form form("frmPicture", frmPicture.visible, closePicture);

static void show(RestPicture picture)
{
    frmPicture.shown = picture;
    openAboveMain(frmPicture.visible);
}

void mnuCoffee_Click()
{
    show(RestPicture::imgCoffee);
}

void mnuBeach_Click()
{
    show(RestPicture::imgBeach);
}

void mnuFavorite_Click()
{
    show(RestPicture::imgFavorite);
}

void closePicture()
{
    closeAboveMain(frmPicture.visible);
}
