#include "trials/fire/random_user.h"

#include "core/main_screen.h"
#include "core/sheet_state.h"

#include <QAction>
#include <QFileDialog>
#include <QWindow>
#include <cstdio>

void RandomUser::live()
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
    trial.over = true;
    QMetaObject::invokeMethod(
        qApp, [] { QApplication::exit(); }, Qt::QueuedConnection);
}

void RandomUser::doSomething()
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

int RandomUser::anyKey()
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

void RandomUser::type(int milliseconds)
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

void RandomUser::clickAbout(const Seen& seen)
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

void RandomUser::openFromMenu()
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

void RandomUser::answerFileDialog()
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

void RandomUser::resize(const Seen& seen)
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

void RandomUser::loseKeyboard()
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

void RandomUser::comeToRest()
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
        return fault("the window cannot be brought back: popup " + std::to_string(seen.popup) + " question " +
                     std::to_string(seen.question) + " enabled " + std::to_string(seen.enabled) + " active " +
                     std::to_string(seen.active) + " modifying " + std::to_string(seen.modifying));
    pauseFor(150);
    seen = look();
    if (seen.layer != 0 || seen.shiftDown || seen.minus || !seen.keysActive)
        fault("stuck: layer " + std::to_string(seen.layer) + " shift " + std::to_string(seen.shiftDown) +
              " undo " + std::to_string(seen.minus) + " keys " + std::to_string(seen.keysActive));
    measureMemory(seen);
    tryOneKey(seen);
    std::printf("day %d, %d lines of the log: heap %.2f MiB, %lld objects\n", trial.day.load(), seen.lines,
                seen.heap, static_cast<long long>(seen.parts));
    std::fflush(stdout);
}

void RandomUser::tryOneKey(const Seen& before)
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

void RandomUser::endDay()
{
    const int today = trial.day;
    for (int i = 0; i < 5 && trial.day == today; ++i) {
        hand_.tapWith(place::alt, place::of('f'));
        hand_.tap(place::up);
        hand_.tap(place::enter);
        pauseFor(200);
        hand_.tap(place::left);
        hand_.tap(place::enter);
        pauseFor(500);
    }
    if (trial.day == today)
        return fault("the day cannot be ended");
    comeToRest();
}
