// under_fire SEED SECONDS: the real window under a random user of a real X server, day after day: fast typing
// with overlaps, clicks anywhere, dialogs opened by key and closed by Esc, resizing, the keyboard lost with
// keys held. Told at the end: handlers beyond 100 ms, stuck layers, messages of the toolkit, and the heap at
// the same point of every day. Everything is written to a temporary folder. Not a part of ./test; run it with
//   xvfb-run -a -s "-screen 0 1024x768x24" sh -c "openbox & exec build/release/app/under_fire 1 600"

#include "core/main_screen.h"
#include "core/sheet_state.h"
#include "trials/delivered_copy.h"
#include "trials/fire/random_user.h"
#include "trials/fire/trial.h"
#include "trials/fire/watched_application.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <thread>

namespace {

void takeMessage(QtMsgType type, const QMessageLogContext&, const QString& text)
{
    if (type != QtDebugMsg && type != QtInfoMsg)
        fault("message of the toolkit: " + text.toStdString());
}

/// File dialogs stay in the folder of this run and change nothing there but by saving.
class FileDialogsKept : public QObject {
    bool eventFilter(QObject* target, QEvent* event) override
    {
        auto* const dialog = event->type() == QEvent::Show ? qobject_cast<QFileDialog*>(target) : nullptr;
        if (dialog != nullptr) {
            dialog->setOption(QFileDialog::ReadOnly);
            dialog->setDirectory(QDir::currentPath());
            connect(dialog, &QFileDialog::directoryEntered, dialog, [dialog](const QString& folder) {
                if (folder != QDir::currentPath())
                    dialog->setDirectory(QDir::currentPath());
            });
        }
        return false;
    }
};

} // namespace

int main(int argc, char* argv[])
{
    if (argc != 3) {
        std::fprintf(stderr, "under_fire SEED SECONDS\n");
        return 2;
    }
    setenv("PATH", "/nonexistent", 1); // links in the windows open no browser
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    WatchedApplication application(argc, argv);
    application.setApplicationName("TallyStrata under fire");
    const DeliveredCopy folder(DELIVERED_FOLDER);
    QFile::copy(EXAMPLE, folder.path() + "/d.csv");
    QDir::setCurrent(folder.path());
    qInstallMessageHandler(takeMessage);
    FileDialogsKept kept;
    application.installEventFilter(&kept);

    RandomUser user(static_cast<unsigned>(std::atoi(argv[1])), std::atoi(argv[2]));
    std::thread life([&] { user.live(); });
    while (!trial.over) {
        ++trial.day;
        sheet = SheetState();
        frmMain = MainScreen();
        Program today(folder.path());
        trial.program = &today;
        QApplication::exec();
        trial.program = nullptr;
    }
    life.join();

    const WatchedApplication::Report& report = application.report();
    std::printf(
        "%d days, %ld keys, %ld clicks, %ld menus, %ld resizings, %ld losses of the keyboard, %ld rests\n",
        trial.day.load(), user.keys, user.clicks, user.menus, user.resizes, user.losses, user.rests);
    std::printf(
        "%ld events: %ld beyond 20 ms, %ld beyond 50 ms, %zu beyond 100 ms; the longest %.1f ms, %s\n",
        report.events, report.beyond20, report.beyond50, report.hangs.size(), report.longest,
        report.longestName.c_str());
    std::printf("slowest key of the rests %.1f ms; %d faults\n", user.slowestKey, trial.faults.load());
    return trial.faults > 0 || !report.hangs.empty();
}
