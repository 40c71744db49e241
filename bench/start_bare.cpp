#include "bench/start_time.h"

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QWidget window;
    window.resize(1000, 700);
    window.show();
    window.activateWindow();
    return reportReady(window);
}
