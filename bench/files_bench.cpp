// The fullest sheet on a real disk and in the real window. Limits: open to ready on screen 100 ms, save 10
// ms, a backup far below the 70 ms that a key press has, a new sample 50 ms from its window's opening to
// ready.

#include "app/program.h"
#include "bench/full_sheet.h"
#include "bench/report.h"
#include "core/main_screen.h"
#include "core/sheet_state.h"
#include "files/backup.h"
#include "files/next_sample.h"
#include "files/open_sheet.h"
#include "files/save_sheet.h"
#include "trials/delivered_copy.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QTemporaryDir>
#include <cstdio>
#include <functional>
#include <vector>

namespace {

void measure(
    const char* what, double limit, const std::function<void()>& work,
    const std::function<void()>& prepare = [] {})
{
    std::vector<double> times;
    for (int i = 0; i < 21; ++i) {
        prepare();
        QElapsedTimer timer;
        timer.start();
        work();
        times.push_back(static_cast<double>(timer.nsecsElapsed()) / 1e6);
    }
    report(what, median(times), "ms", limit);
}

} // namespace

int main(int argc, char* argv[])
{
    QApplication application(argc, argv);
    const QTemporaryDir folder;
    const DeliveredCopy delivered(DELIVERED_FOLDER);
    Program program(delivered.path());
    const std::string path = folder.filePath("full.csv").toStdString();
    if (!ports.files->write(path, fullSheetText()))
        return 1;

    measure("open the fullest sheet to ready on screen", 100, [&] {
        sheet.SheetPristine = true; // nothing to ask about
        frmMain.Command5[0].enabled = false;
        program.window().onEvent([&] { openDropped(path); });
        QApplication::sendPostedEvents();
        QApplication::processEvents();
    });
    std::printf("samples %d, total of the last %s\n", sheet.SampleCount, frmMain.Text3[0].text.c_str());
    measure("save the fullest sheet", 10, [] { SaveSheet(SaveMode::plain); });
    measure("backup inside a key press", 70, AutoBackup);

    const std::string almost = folder.filePath("almost.csv").toStdString();
    if (!ports.files->write(almost, fullSheetText(sampleLimit - 1)))
        return 1;
    const auto open = [&] {
        sheet.SheetPristine = true; // nothing to ask about
        frmMain.Command5[0].enabled = false;
        program.window().onEvent([&] { openDropped(almost); });
        QApplication::processEvents();
    };
    const auto addSample = [&] {
        program.window().onEvent(mnuNext_Click);
        QApplication::processEvents();
        frmNext.Text1.text = "125";
        program.window().onEvent(frmNext_Command1_Click);
        QApplication::processEvents();
    };
    measure("window of the 250th sample, opened, accepted, ready", 50, addSample, open);
    std::printf("sample %d of %d\n", sheet.CurrentSample, sheet.SampleCount);
    return sheet.SaveResult == 2 ? 1 : 0;
}
