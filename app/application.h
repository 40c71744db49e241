#pragma once

#include <QApplication>

class EarlyFonts;

/// The application with its names, style and icon.
class Application : public QApplication {
public:
    Application(int& argc, char* argv[]);

private:
    Application(const EarlyFonts& fonts, int& argc, char* argv[]);
};
