#include "trials/fire/trial.h"

#include "core/forms.h"
#include "core/main_screen.h"
#include "core/number_text.h"
#include "core/sheet_state.h"

#include <QFileDialog>
#include <QPixmapCache>
#include <cstdio>
#include <malloc.h>

Trial trial;

void fault(const std::string& what)
{
    ++trial.faults;
    std::printf("FAULT on day %d: %s\n", trial.day.load(), what.c_str());
    std::fflush(stdout);
}

/// The answer of the program's own thread.
template <class Question>
static auto inMain(Question question)
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
        if (trial.program == nullptr)
            return seen;
        MainWindow& main = trial.program->window();
        QWidget* const front = QApplication::activeWindow();
        seen.running = true;
        seen.popup = QApplication::activePopupWidget() != nullptr;
        seen.question = QApplication::activeModalWidget() != nullptr;
        seen.fileDialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget()) != nullptr;
        seen.diagram = sheet.DiagramOpen;
        seen.active = main.isActiveWindow();
        seen.enabled = isMainEnabled();
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

void measureMemory(Seen& seen)
{
    seen = inMain([seen]() mutable {
        QPixmapCache::clear();
        if (trial.program != nullptr)
            seen.parts =
                trial.program->window().findChildren<QObject*>().size() + QApplication::allWidgets().size();
        const struct mallinfo2 heap = mallinfo2();
        seen.heap = static_cast<double>(heap.uordblks + heap.hblkhd) / (1 << 20);
        return seen;
    });
}
