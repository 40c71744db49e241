#pragma once

#include <thread>

/// Reads the system's list of fonts while the application connects to the screen: the first letter on show
/// would wait for it. The destructor waits until it is read. Where fonts are not asked of fontconfig it does
/// nothing.
class EarlyFonts {
public:
    EarlyFonts();
    ~EarlyFonts();
    EarlyFonts(const EarlyFonts&) = delete;
    EarlyFonts& operator=(const EarlyFonts&) = delete;

private:
    std::thread reading_;
};
