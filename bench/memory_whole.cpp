// The program at its start, and with the fullest sheet and its diagram, all columns in view.

#include "app/application.h"
#include "app/program.h"
#include "bench/full_sheet.h"
#include "bench/memory.h"
#include "diagram/diagram_window.h"
#include "files/open_sheet.h"
#include "trials/delivered_copy.h"

int main(int argc, char* argv[])
{
    Application application(argc, argv);
    const DeliveredCopy delivered(DELIVERED_FOLDER);
    Program program(delivered.path());
    const std::string path = delivered.path().toStdString() + "/full.csv";
    reportMemory();
    if (!ports.files->write(path, fullSheetText()))
        return 1;
    program.window().onEvent([&] { openDropped(path); });
    program.window().onEvent([] { mnuDiagramStyle_Click(styleAtStart); });
    return reportMemory();
}
