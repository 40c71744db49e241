#pragma once

#include "app/program.h"
#include "core/forms.h"
#include "core/main_screen.h"
#include "core/sheet_state.h"
#include "trials/delivered_copy.h"

#include <QApplication>
#include <QDeadlineTimer>
#include <QKeyEvent>
#include <QWindow>
#include <gtest/gtest.h>
#include <memory>

/// The real program with its real window and the delivered files, on a known keyboard and fresh records.
class WindowTest : public ::testing::Test {
protected:
    DeliveredCopy delivered{DELIVERED_FOLDER};
    std::unique_ptr<Program> program;
    MainWindow* window = nullptr;

    void SetUp() override
    {
        sheet = SheetState();
        frmMain = MainScreen();
        for (const Form* const form : forms())
            form->visible = false;
        program = std::make_unique<Program>(delivered.path());
        window = &program->window();
        window->activateWindow();
        waitFor([this] { return window->isActiveWindow(); });
        ASSERT_TRUE(window->isActiveWindow());
        ASSERT_TRUE(waitFor([this] { return window->findChild<QWidget*>("Frame1(2)") != nullptr; }));
    }

    /// Runs the event loop until `done` holds, for ten seconds at most: the machine may be busy.
    template <class Condition>
    static bool waitFor(Condition done)
    {
        QGuiApplication::sync(); // what a real X server has sent
        const QDeadlineTimer deadline(10000);
        while (!done() && !deadline.hasExpired())
            QApplication::processEvents(QEventLoop::AllEvents, 5);
        return done();
    }

    /// Runs the event loop for a while, to see that nothing happens.
    static void settle(int milliseconds = 60)
    {
        QGuiApplication::sync();
        const QDeadlineTimer deadline(milliseconds);
        while (!deadline.hasExpired())
            QApplication::processEvents(QEventLoop::AllEvents, 5);
    }

    /// The key of the letter Q as a keyboard sends it, with its place on it, which QTest knows nothing of.
    static void pressQ(QWidget& target)
    {
        QKeyEvent event(QEvent::KeyPress, Qt::Key_Q, {}, 24, 'q', 0, "q");
        QApplication::sendEvent(target.windowHandle(), &event);
    }

    template <class Widget>
    Widget* named(const char* name)
    {
        Widget* const widget = window->findChild<Widget*>(name);
        EXPECT_NE(widget, nullptr) << name;
        return widget;
    }
};
