// under_fire SEED SECONDS: the real window under a random user of a real X server, day after day: fast typing
// with overlaps, clicks anywhere, dialogs opened by key and closed by Esc, resizing, the keyboard lost with
// keys held. Told at the end: handlers beyond 100 ms, stuck layers, messages of the toolkit, and the heap at
// the same point of every day. Everything is written to a temporary folder. Not a part of ./test; run it with
//   xvfb-run -a -s "-screen 0 1024x768x24" sh -c "openbox & exec build/release/app/under_fire 1 600"

#include "app/delivered_copy.h"
#include "app/fire/watched_application.h"
#include "app/fire/x_hand.h"
#include "app/program.h"
#include "core/main_screen.h"
#include "core/number_text.h"
#include "core/sheet_state.h"

#include <QAction>
#include <QDir>
#include <QFileDialog>
#include <QPixmapCache>
#include <QWindow>
#include <atomic>
#include <malloc.h>
#include <random>

namespace {

Program* program = nullptr; ///< the running one; null between two days
std::atomic<bool> over{false};
std::atomic<int> faults{0};
std::atomic<int> day{0};

void fault(const std::string& what)
{
    ++faults;
    std::printf("FAULT on day %d: %s\n", day.load(), what.c_str());
    std::fflush(stdout);
}

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

template <class Question>
auto inMain(Question question)
{
    decltype(question()) answer{};
    QMetaObject::invokeMethod(
        qApp, [&] { answer = question(); }, Qt::BlockingQueuedConnection);
    return answer;
}

Seen look()
{
    return inMain([] {
        Seen seen;
        if (program == nullptr)
            return seen;
        MainWindow& main = program->window();
        QWidget* const front = QApplication::activeWindow();
        seen.running = true;
        seen.popup = QApplication::activePopupWidget() != nullptr;
        seen.question = QApplication::activeModalWidget() != nullptr;
        seen.fileDialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget()) != nullptr;
        seen.diagram = sheet.DiagramOpen;
        seen.active = main.isActiveWindow();
        seen.enabled = frmMain.enabled;
        seen.modifying = sheet.Modifying;
        seen.main = main.geometry();
        seen.front = front != nullptr ? front->geometry() : main.geometry();
        seen.mainId = static_cast<std::uint32_t>(main.winId());
        seen.layer = sheet.Layer;
        seen.page = frmMain.SSTab1;
        seen.total = wholeNumber(frmMain.Text3[0].text);
        seen.shiftDown = sheet.Shift1Down || sheet.Shift2Down;
        seen.minus = sheet.MinusState != 0;
        seen.keysActive = sheet.KeysActive;
        seen.lines = sheet.ActionCount;
        return seen;
    });
}

/// Without what the toolkit keeps of pictures of buttons and bars, which has a limit of its own.
void measureMemory(Seen& seen)
{
    seen = inMain([seen]() mutable {
        QPixmapCache::clear();
        if (program != nullptr)
            seen.parts =
                program->window().findChildren<QObject*>().size() + QApplication::allWidgets().size();
        const struct mallinfo2 heap = mallinfo2();
        seen.heap = static_cast<double>(heap.uordblks + heap.hblkhd) / (1 << 20);
        return seen;
    });
}

/// Does not wait, since it may open a dialog.
template <class Deed>
void letMain(Deed deed)
{
    QMetaObject::invokeMethod(
        qApp,
        [deed] {
            if (program != nullptr)
                deed(program->window());
        },
        Qt::QueuedConnection);
}

class User {
public:
    User(unsigned seed, int seconds) : random_(seed), end_(Clock::now() + std::chrono::seconds(seconds)) {}

    void live()
    {
        auto nextLook = Clock::now() + std::chrono::seconds(5);
        auto nextDay = Clock::now() + std::chrono::seconds(number(90, 180));
        while (Clock::now() < end_) {
            doSomething();
            if (Clock::now() < nextLook)
                continue;
            comeToRest();
            nextLook = Clock::now() + std::chrono::seconds(number(10, 25));
            if (Clock::now() >= nextDay) {
                endDay();
                nextDay = Clock::now() + std::chrono::seconds(number(90, 180));
            }
        }
        comeToRest();
        over = true;
        QMetaObject::invokeMethod(
            qApp, [] { QApplication::exit(); }, Qt::QueuedConnection);
    }
    long keys = 0, clicks = 0, menus = 0, resizes = 0, losses = 0, rests = 0;
    double slowestKey = 0; ///< milliseconds from the X server to the total on show

private:
    using Clock = std::chrono::steady_clock;
    std::mt19937 random_;
    Clock::time_point end_;
    XHand hand_;
    int dayOfLines_ = 0;

    int number(int from, int to) { return std::uniform_int_distribution<>(from, to)(random_); }
    bool chance(int percent) { return number(1, 100) <= percent; }

    void doSomething()
    {
        const Seen seen = look();
        const int what = number(1, 100);
        if (!seen.running)
            hand_.tap(place::escape); // a question at the start
        else if (seen.fileDialog)
            answerFileDialog();
        else if (what <= 45)
            type(number(300, 2500));
        else if (what <= 65)
            clickAbout(seen);
        else if (what <= 82)
            openFromMenu();
        else if (what <= 90)
            resize(seen);
        else if (what <= 97)
            loseKeyboard();
        else
            hand_.tapWith(place::alt, place::f4);
        if (chance(25))
            hand_.tap(place::escape);
    }

    int anyKey()
    {
        if (chance(8))
            return chance(50) ? place::semicolon : place::p; // the layers
        if (chance(5))
            return place::backspace;
        if (number(1, 400) == 1)
            return place::save;
        if (chance(2)) {
            constexpr int others[] = {
                place::tab, place::enter, place::escape, place::space, place::ctrl, place::shift,
                place::up,  place::down,  place::left,   place::right, 79,          87,
                95,         110,          115,           119,          112,         117};
            return others[number(0, std::size(others) - 1)];
        }
        if (chance(10))
            return number(67, 75); // F1 to F9
        const int row = number(0, 3);
        return place::rowStarts[row] + number(0, static_cast<int>(place::letterRows[row].size()) - 1);
    }

    /// 30 keys a second; each is held for a while, so that up to four are down at once.
    void type(int milliseconds)
    {
        struct Held {
            int key;
            Clock::time_point until;
        };
        std::vector<Held> down;
        const auto stop = Clock::now() + std::chrono::milliseconds(milliseconds);
        auto next = Clock::now();
        while (Clock::now() < stop || !down.empty()) {
            const auto now = Clock::now();
            for (std::size_t i = 0; i < down.size();)
                if (down[i].until <= now) {
                    hand_.release(down[i].key);
                    down.erase(down.begin() + static_cast<long>(i));
                } else
                    ++i;
            if (now >= next && now < stop) {
                const int key = anyKey();
                const bool isLong = key == place::semicolon || key == place::p || key == place::backspace;
                if (!hand_.holds(key)) {
                    hand_.press(key);
                    down.push_back(
                        {key, now + std::chrono::milliseconds(isLong ? number(40, 900) : number(15, 130))});
                    ++keys;
                }
                next += std::chrono::milliseconds(number(20, 46));
            }
            pauseFor(3);
        }
    }

    void clickAbout(const Seen& seen)
    {
        const QRect area = chance(70) ? seen.front : seen.main;
        for (int i = number(1, 8); i > 0; --i) {
            const int button = chance(70) ? 1 : chance(60) ? 3 : number(2, 5);
            hand_.moveTo(number(area.left(), area.right()), number(area.top(), area.bottom()));
            hand_.button(button, true);
            if (chance(15))
                hand_.moveTo(number(area.left(), area.right()), number(area.top(), area.bottom()));
            pauseFor(number(5, 120));
            hand_.button(button, false);
            if (chance(15)) {
                hand_.button(button, true);
                hand_.button(button, false);
            }
            pauseFor(number(5, 150));
            ++clicks;
            if (look().fileDialog)
                return;
        }
    }

    void openFromMenu()
    {
        ++menus;
        constexpr std::string_view menuKeys = "fedtvhs";
        hand_.tapWith(place::alt, place::of(menuKeys[static_cast<std::size_t>(number(0, 6))]));
        for (int i = number(0, 16); i > 0; --i)
            hand_.tap(chance(90) ? place::down : place::right, 8);
        hand_.tap(place::enter);
        pauseFor(200);
        if (look().fileDialog) {
            answerFileDialog();
            return;
        }
        if (chance(50))
            type(number(100, 1500));
        if (chance(30) && look().running)
            clickAbout(look());
        if (chance(60))
            hand_.tap(place::escape);
    }

    void answerFileDialog()
    {
        pauseFor(100);
        if (chance(40)) {
            hand_.tap(place::escape);
            return;
        }
        hand_.tapWith(place::ctrl, place::of('a'));
        const char* const names[] = {"d.csv", "s.csv", "t.csv"};
        for (const char* sign = names[number(0, 2)]; *sign != 0; ++sign)
            hand_.tap(place::of(*sign), 8);
        hand_.tap(place::enter);
        pauseFor(150);
        if (look().question) { // whether to write over it
            hand_.tap(place::left);
            hand_.tap(chance(70) ? place::enter : place::escape);
        }
    }

    void resize(const Seen& seen)
    {
        ++resizes;
        for (int i = number(1, 10); i > 0; --i) {
            hand_.resize(seen.mainId, static_cast<std::uint32_t>(number(0, 200)),
                         static_cast<std::uint32_t>(number(0, 150)),
                         static_cast<std::uint32_t>(number(300, 1024)),
                         static_cast<std::uint32_t>(number(200, 768)));
            pauseFor(number(5, 100));
        }
    }

    void loseKeyboard()
    {
        ++losses;
        for (int i = number(1, 4); i > 0; --i)
            hand_.press(chance(50) ? chance(50) ? place::semicolon : place::p : anyKey());
        pauseFor(number(0, 120));
        hand_.takeFocusAway();
        pauseFor(number(20, 500));
        if (chance(50))
            hand_.releaseAll();
        hand_.giveFocusBack();
        letMain([](MainWindow& main) {
            QWidget* const modal = QApplication::activeModalWidget();
            (modal != nullptr ? modal : &main)->activateWindow();
        });
        pauseFor(number(0, 200));
        hand_.releaseAll();
    }

    /// Lets everything go, closes what is open, and looks whether the window counts as it did at the start.
    void comeToRest()
    {
        ++rests;
        hand_.releaseAll();
        Seen seen;
        for (int i = 0; i < 60; ++i) {
            seen = look();
            if (seen.running && !seen.popup && !seen.question && !seen.diagram && !seen.modifying &&
                seen.enabled && seen.active)
                break;
            if (seen.modifying && !seen.popup && !seen.question)
                letMain([](MainWindow& main) { main.findChild<QAction*>("mnuFinishAmend")->trigger(); });
            else if (i % 4 == 3)
                letMain([](MainWindow& main) { // by the frame's button: Esc is a key like others there
                    QWidget* const modal = QApplication::activeModalWidget();
                    QWidget* const front = QApplication::activeWindow();
                    if (modal != nullptr)
                        modal->close();
                    else if (front != nullptr && front != &main)
                        front->close();
                    else if (QWidget* const diagram = main.findChild<QWidget*>("frmDiagram");
                             sheet.DiagramOpen && diagram != nullptr)
                        diagram->close();
                    main.activateWindow();
                });
            else if (!seen.active || seen.popup || seen.question)
                hand_.tap(place::escape);
            pauseFor(60);
        }
        if (!seen.running || seen.popup || seen.question || !seen.enabled || !seen.active || seen.modifying)
            return fault("the window cannot be brought back: popup " + std::to_string(seen.popup) +
                         " question " + std::to_string(seen.question) + " enabled " +
                         std::to_string(seen.enabled) + " active " + std::to_string(seen.active) +
                         " modifying " + std::to_string(seen.modifying));
        pauseFor(150);
        seen = look();
        if (seen.layer != 0 || seen.shiftDown || seen.minus || !seen.keysActive)
            fault("stuck: layer " + std::to_string(seen.layer) + " shift " + std::to_string(seen.shiftDown) +
                  " undo " + std::to_string(seen.minus) + " keys " + std::to_string(seen.keysActive));
        measureMemory(seen);
        tryOneKey(seen);
        std::printf("day %d, %d lines of the log: heap %.2f MiB, %lld objects\n", day.load(), seen.lines,
                    seen.heap, static_cast<long long>(seen.parts));
        std::fflush(stdout);
    }

    /// A key counts one, or asks about an older sample.
    void tryOneKey(const Seen& before)
    {
        const auto pressed = Clock::now();
        hand_.press(place::q);
        Seen seen;
        do {
            seen = look();
        } while (seen.total == before.total && !seen.question &&
                 Clock::now() - pressed < std::chrono::seconds(2));
        const std::chrono::duration<double, std::milli> took = Clock::now() - pressed;
        hand_.release(place::q);
        if (seen.question)
            hand_.tap(place::escape);
        else if (seen.total != before.total + 1)
            fault("a key counts nothing: total " + std::to_string(before.total) + " stays " +
                  std::to_string(seen.total));
        slowestKey = std::max(slowestKey, took.count());
        pauseFor(120);
        if (const int page = look().page; page != 0 && !seen.question)
            fault("stuck on page " + std::to_string(page));
    }

    /// File, Quit, Yes.
    void endDay()
    {
        const int today = day;
        for (int i = 0; i < 5 && day == today; ++i) {
            hand_.tapWith(place::alt, place::of('f'));
            hand_.tap(place::up);
            hand_.tap(place::enter);
            pauseFor(200);
            hand_.tap(place::left);
            hand_.tap(place::enter);
            pauseFor(500);
        }
        if (day == today)
            return fault("the day cannot be ended");
        comeToRest();
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

    User user(static_cast<unsigned>(std::atoi(argv[1])), std::atoi(argv[2]));
    std::thread life([&] { user.live(); });
    while (!over) {
        ++day;
        sheet = SheetState();
        frmMain = MainScreen();
        Program today(folder.path());
        program = &today;
        QApplication::exec();
        program = nullptr;
    }
    life.join();

    const WatchedApplication::Report& report = application.report();
    std::printf(
        "%d days, %ld keys, %ld clicks, %ld menus, %ld resizings, %ld losses of the keyboard, %ld rests\n",
        day.load(), user.keys, user.clicks, user.menus, user.resizes, user.losses, user.rests);
    std::printf(
        "%ld events: %ld beyond 20 ms, %ld beyond 50 ms, %zu beyond 100 ms; the longest %.1f ms, %s\n",
        report.events, report.beyond20, report.beyond50, report.hangs.size(), report.longest,
        report.longestName.c_str());
    std::printf("slowest key of the rests %.1f ms; %d faults\n", user.slowestKey, faults.load());
    return faults > 0 || !report.hangs.empty();
}
