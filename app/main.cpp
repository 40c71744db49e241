#include "app/program.h"
#include "core/version.h"
#include "platform/qt/program_folder.h"

#include <QApplication>
#include <QStandardPaths>

int main(int argc, char* argv[])
{
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication application(argc, argv);
    QApplication::setApplicationName("TallyStrata");
    QApplication::setApplicationVersion(programVersion);
    Program program(programFolder(QApplication::applicationDirPath(),
                                  QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)));
    return QApplication::exec();
}
