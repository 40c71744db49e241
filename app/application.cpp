#include "app/application.h"

#include "core/version.h"
#include "platform/qt/early_fonts.h"
#include "window/legible_style.h"

#include <QIcon>
#include <QTimer>

/// In the sizes that title bars, task bars and switchers ask for; a portable copy has no installed one.
static QIcon programIcon()
{
    QIcon icon;
    for (const char* file : {":/icon/16.png", ":/icon/32.png", ":/icon/48.png", ":/icon/128.png"})
        icon.addFile(file);
    return icon;
}

Application::Application(int& argc, char* argv[]) : Application(EarlyFonts(), argc, argv)
{
}

Application::Application(const EarlyFonts&, int& argc, char* argv[]) : QApplication(argc, argv)
{
    setApplicationName("TallyStrata");
    setApplicationVersion(programVersion);
    setDesktopFileName("org.tallystrata.TallyStrata");
    setStyle(new LegibleStyle);
    // The first picture that is read loads the plug-ins for all formats: the window comes before its icon.
    constexpr int untilWindowStands = 250; // milliseconds
    QTimer::singleShot(untilWindowStands, this, [] { setWindowIcon(programIcon()); });
}
