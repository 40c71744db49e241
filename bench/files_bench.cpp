// The fullest sheet on a real disk and in the real window, beside one write (to the disk) and read of the
// same bytes.

#include "app/program.h"
#include "bench/file_yardstick.h"
#include "bench/full_sheet.h"
#include "core/main_screen.h"
#include "core/sheet_state.h"
#include "files/backup.h"
#include "files/next_sample.h"
#include "files/open_sheet.h"
#include "files/save_sheet.h"
#include "trials/delivered_copy.h"

#include <QApplication>
#include <QTemporaryDir>
#include <cstdio>
#include <functional>
#include <vector>

namespace {

void measure(
    const char* what, double limit, const std::function<void()>& work,
    const std::function<void()>& prepare = [] {})
{
    static const QTemporaryDir folder;
    static const QByteArray bytes = QByteArray::fromStdString(fullSheetText());
    std::vector<double> times;
    std::vector<double> plain;
    for (int i = 0; i < 21; ++i) {
        prepare();
        plain.push_back(writeAndReadMilliseconds(folder.filePath("plain.csv"), bytes));
        times.push_back(milliseconds(work));
    }
    report(what, median(times), median(plain), limit);
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

    measure("open the fullest sheet to ready on screen", 15, [&] {
        sheet.SheetPristine = true; // nothing to ask about
        frmMain.Command5[0].enabled = false;
        program.window().onEvent([&] { openDropped(path); });
        QApplication::sendPostedEvents();
        QApplication::processEvents();
    });
    std::printf("samples %d, total of the last %s\n", sheet.SampleCount, frmMain.Text3[0].text.c_str());
    measure("save the fullest sheet", 5, [] { SaveSheet(SaveMode::plain); });
    measure("backup inside a key press", 6, AutoBackup);

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
