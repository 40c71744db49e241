#include "app/program.h"

#include "app/wiring.h"
#include "core/endings.h"
#include "core/hooks.h"
#include "core/main_keys.h"
#include "core/start_up.h"
#include "figure/figure_form.h"
#include "files/left_work.h"
#include "files/recovery.h"
#include "platform/qt/text.h"
#include "platform/twips.h"
#include "statistics/statistics_form.h"

#include <QApplication>
#include <QScreen>
#include <cstdlib>

/// The system has asked the program to end, whatever dialog is open: what is not saved is offered at the next
/// start.
static void endAtOnce()
{
    endRecovery(false);
    ports.files->release(recoveryCopyPath(recoveryCopy.place));
    std::_Exit(EXIT_SUCCESS);
}

Program::Program(const QString& folder)
    : timer_([this] { window_.onEvent(Timer1_Timer); }),
      recoveryTimer_([this] { keepWork(RecoveryTimer_Timer); }),
      journalTimer_([this] { keepWork(JournalTimer_Timer); }),
      pauseTimer_([this] { keepWork(PauseTimer_Timer); }),
      deadlineTimer_([this] { keepWork(PauseTimer_Timer); }),
      statisticsTimer_([this] { window_.onEvent(StatisticsTimer_Timer); }), figureTimer_([this] {
          const int before = frmFigure.planRevision;
          FigureTimer_Timer();
          if (frmFigure.planRevision != before)
              window_.present();
      }),
      dialogs_(window_), keys_(window_), ends_(endAtOnce, [] { endRecovery(false); })
{
    ports = {&files_,
             &dialogs_,
             &sound_,
             &clock_,
             &timer_,
             &recoveryTimer_,
             &pictures_,
             nativePath(folder),
             twipsPerPixel * window_.screen()->size().width(),
             &journalTimer_,
             &pauseTimer_,
             &deadlineTimer_,
             &statisticsTimer_,
             &figureTimer_,
             &json_};
    connectRooms();
    hooks.EndProgram = [] { QApplication::exit(); };
    recoveryCopy = {};
    window_.onEvent(Form_Load);
    window_.onEvent(findRecoveryCopies);
}

/// These are no events of the user: all that they change on show is the line about the disk.
void Program::keepWork(void (*handler)())
{
    handler();
    window_.presentNotice();
}

Program::~Program()
{
    Form_Terminate();
}
