#pragma once

#include "trials/days/chance.h"

#include <string>

/// A sheet's file after an accident: cut short, edited by hand, saved by a spreadsheet or of another layout.
std::string brokenFile(std::string text, Chance& chance);
