#include "platform/qt/early_fonts.h"

#include <fontconfig/fontconfig.h>

EarlyFonts::EarlyFonts() : reading_(FcInit)
{
}

EarlyFonts::~EarlyFonts()
{
    reading_.join();
}
