#pragma once

#include "figure/figure_settings.h"
#include "platform/page.h"

#include <string_view>

/// A taxon's name, cut where the slant of its letters changes. By words, upright stand: what is in brackets,
/// "var.", "cf.", "sp." and their like, "type" and "complex" behind a hyphen, "Other", and words that end in
/// -ae or -ales; a name of two taxa ("Ulmus/Zelkova") is taken part by part. The rest is italic.
std::vector<TextRun> nameRuns(std::string_view name, NameSlant slant);
