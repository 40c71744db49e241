#include "bench/memory.h"

#include <QWidget>

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QWidget window;
    window.resize(1000, 700);
    window.show();
    return reportMemory();
}
