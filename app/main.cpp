#include "app/program.h"
#include "platform/qt/program_folder.h"

#include <QApplication>
#include <QStandardPaths>

int main(int argc, char* argv[])
{
    QGuiApplication::setHighDpiScaleFactorRoundingPolicy(Qt::HighDpiScaleFactorRoundingPolicy::PassThrough);
    QApplication application(argc, argv);
    QApplication::setApplicationName("TallyStrata");
    QApplication::setApplicationVersion("3.2.5");
    Program program(programFolder(QApplication::applicationDirPath(),
                                  QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)));
    return QApplication::exec();
}
