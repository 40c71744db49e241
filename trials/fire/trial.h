#pragma once

#include "app/program.h"

#include <QApplication>
#include <QRect>
#include <atomic>
#include <cstdint>
#include <string>

/// What the program's own thread and that of its user share.
struct Trial {
    Program* program = nullptr; ///< the running one; null between two days
    std::atomic<bool> over{false};
    std::atomic<int> faults{0};
    std::atomic<int> day{0};
};
extern Trial trial;

/// Counts and prints what must not be.
void fault(const std::string& what);

/// What the user sees, asked on the program's own thread.
struct Seen {
    bool running = false;
    bool question = false, popup = false, fileDialog = false, diagram = false;
    bool active = false; ///< the main window has the keyboard
    bool enabled = false;
    bool modifying = false;
    QRect main, front; ///< in pixels of the screen
    std::uint32_t mainId = 0;
    int layer = 0, page = 0, total = 0;
    bool shiftDown = false, minus = false, keysActive = true;
    int lines = 0;
    double heap = 0;     ///< MiB in use
    qsizetype parts = 0; ///< widgets, menu entries and the like
};

Seen look();
/// Without what the toolkit keeps of pictures of buttons and bars, which has a limit of its own.
void measureMemory(Seen& seen);

/// Does not wait, since it may open a dialog.
template <class Deed>
void letMain(Deed deed)
{
    QMetaObject::invokeMethod(
        qApp,
        [deed] {
            if (trial.program != nullptr)
                deed(trial.program->window());
        },
        Qt::QueuedConnection);
}
