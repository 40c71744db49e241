#include "app/program.h"
#include "app/ready_folder_test.h"
#include "bench/start_time.h"

#include <optional>

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    std::optional<ReadyFolder> folder(std::in_place);
    Program program(folder->path());
    folder.reset(); // reportReady() leaves without cleaning up
    return reportReady(program.window());
}
