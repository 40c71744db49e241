// From the key event to the repainted window, beside a bare window with one line edit that takes the same
// keys; in turn, in one run, after a day of 20000 actions. The same with the longest saturation curve. And
// what the recovery journal costs between two keys, beside one write (to the disk) and read of such a line.

#include "app/program.h"
#include "bench/file_yardstick.h"
#include "core/action_log.h"
#include "core/editing.h"
#include "core/main_screen.h"
#include "core/recount_totals.h"
#include "core/sheet_state.h"
#include "core/text_changes.h"
#include "files/recovery.h"
#include "trials/delivered_copy.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QWindow>
#include <cstdio>
#include <vector>

namespace {

/// Sends one key to a window as the platform does and runs the event loop until it is painted.
double pressMilliseconds(QWidget& window, int key, quint32 scanCode, quint32 keysym)
{
    const QString text(QChar(key).toLower());
    const double took = milliseconds([&] {
        QKeyEvent down(QEvent::KeyPress, key, Qt::NoModifier, scanCode, keysym, 0, text);
        QApplication::sendEvent(window.windowHandle(), &down);
        // The paint waits for the window's next update request.
        QApplication::sendPostedEvents();
        QApplication::processEvents();
    });
    QKeyEvent up(QEvent::KeyRelease, key, Qt::NoModifier, scanCode, keysym, 0, text);
    QApplication::sendEvent(window.windowHandle(), &up);
    const QDeadlineTimer guard(75); // the repeat guard of the same key
    while (!guard.hasExpired())
        QApplication::processEvents(QEventLoop::AllEvents, 5);
    return took;
}

void activate(QWidget& window)
{
    window.activateWindow();
    window.raise();
    while (!window.isActiveWindow())
        QApplication::processEvents(QEventLoop::AllEvents, 5);
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    QWidget bare;
    bare.resize(1000, 700);
    QLineEdit line(&bare);
    bare.show();
    const DeliveredCopy delivered(DELIVERED_FOLDER);
    Program program(delivered.path());

    // A long day lies behind.
    program.window().onEvent([] {
        for (int action = 0; action < 20000; ++action)
            logAction("12: Quercus-D");
    });

    struct Key {
        int code;
        quint32 scanCode;
        quint32 keysym;
    };
    const Key keys[] = {
        {Qt::Key_Q, 24, 'q'}, {Qt::Key_W, 25, 'w'}, {Qt::Key_G, 42, 'g'}, {Qt::Key_M, 58, 'm'}};
    std::vector<double> bareTimes;
    std::vector<double> wholeTimes;
    for (int round = 0; round < 25; ++round) {
        activate(bare);
        line.setFocus();
        for (const Key& key : keys)
            bareTimes.push_back(pressMilliseconds(bare, key.code, key.scanCode, key.keysym));
        activate(program.window());
        for (const Key& key : keys)
            wholeTimes.push_back(pressMilliseconds(program.window(), key.code, key.scanCode, key.keysym));
    }
    std::printf("counted %s of %zu key presses\n", frmMain.Text3[0].text.c_str(), wholeTimes.size());
    report("key to repainted window, to the bare one", median(wholeTimes), median(bareTimes), 6);

    // What is done between two keys.
    const QTemporaryDir folder;
    std::vector<double> journalTimes;
    std::vector<double> lineTimes;
    for (int count = 1; count <= 500; ++count) {
        program.window().onEvent([count] {
            setText2(2, std::to_string(count));
            markUnsavedWork();
        });
        journalTimes.push_back(milliseconds(JournalTimer_Timer));
        lineTimes.push_back(writeAndReadMilliseconds(folder.filePath("line.txt"), QByteArray(60, 'x')));
    }
    report("a count into the journal, after it is painted, p99", p99(journalTimes), p99(lineTimes), 0.5);

    // The longest saturation curve.
    program.window().onEvent([] {
        setText2(1, "32600");
        RecountTotals(1);
        for (std::size_t n = 1; n < sheet.DiversityCurve.size(); ++n)
            sheet.DiversityCurve[n] = static_cast<std::int16_t>(10 + 10 * (n * 40 / 32767));
    });
    std::vector<double> longTimes;
    for (int round = 0; round < 25; ++round)
        for (const Key& key : keys)
            longTimes.push_back(pressMilliseconds(program.window(), key.code, key.scanCode, key.keysym));
    report("the same at 32700 individuals", median(longTimes), median(bareTimes), 10);
    return 0;
}
