#include "app/program.h"
#include "bench/start_time.h"

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    Program program(DELIVERED_FOLDER);
    return reportReady(program.window());
}
