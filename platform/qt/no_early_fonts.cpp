#include "platform/qt/early_fonts.h"

EarlyFonts::EarlyFonts() = default;
EarlyFonts::~EarlyFonts() = default;
