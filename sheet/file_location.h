#pragma once

#include <string>

/// Breaks a path behind a folder's end or a blank so that it shows in at most three lines of some 40
/// characters. A stretch without such a place is not broken.
std::string wrappedPath(std::string path);

/// Breaks the text of Text6.
void WrapFileLocation();
