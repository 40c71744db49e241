#include "app/application.h"
#include "app/program.h"
#include "bench/start_time.h"
#include "trials/delivered_copy.h"

#include <optional>

int main(int argc, char* argv[])
{
    Application application(argc, argv);
    const double before = millisecondsSinceStart();
    std::optional<DeliveredCopy> folder(DELIVERED_FOLDER);
    const double copying = millisecondsSinceStart() - before;
    Program program(folder->path());
    folder.reset(); // reportReady() leaves without cleaning up
    return reportReady(program.window(), copying);
}
