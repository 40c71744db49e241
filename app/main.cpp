#include "app/application.h"
#include "app/program.h"
#include "platform/qt/program_folder.h"

#include <QStandardPaths>

int main(int argc, char* argv[])
{
    Application application(argc, argv);
    Program program(programFolder(Application::applicationDirPath(),
                                  QStandardPaths::writableLocation(QStandardPaths::AppDataLocation)));
    return Application::exec();
}
