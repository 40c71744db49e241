#include "app/program.h"
#include "core/version.h"
#include "platform/qt/program_folder.h"
#include "window/legible_style.h"

#include <QApplication>
#include <QIcon>
#include <QStandardPaths>

/// In the sizes that title bars, task bars and switchers ask for; a portable copy has no installed one.
static QIcon programIcon()
{
    QIcon icon;
    for (const char* file : {":/icon/16.png", ":/icon/32.png", ":/icon/48.png", ":/icon/128.png"})
        icon.addFile(file);
    return icon;
}

int main(int argc, char* argv[])
{
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication application(argc, argv);
    QApplication::setApplicationName("TallyStrata");
    QApplication::setApplicationVersion(programVersion);
    QApplication::setDesktopFileName("org.tallystrata.TallyStrata");
    QApplication::setWindowIcon(programIcon());
    QApplication::setStyle(new LegibleStyle);
    Program program(programFolder(QApplication::applicationDirPath(),
                                  QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)));
    return QApplication::exec();
}
