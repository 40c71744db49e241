#include "app/program.h"

#include "app/wiring.h"
#include "core/endings.h"
#include "core/hooks.h"
#include "core/main_keys.h"
#include "core/start_up.h"
#include "figure/figure_form.h"
#include "files/recovery.h"

#include <QApplication>
#include <QScreen>

Program::Program(const QString& folder)
    : timer_([this] { window_.onEvent(Timer1_Timer); }), recoveryTimer_(RecoveryTimer_Timer),
      figureTimer_([this] {
          const int before = frmFigure.planRevision;
          FigureTimer_Timer();
          if (frmFigure.planRevision != before)
              window_.present();
      }),
      dialogs_(window_), keys_(window_)
{
    ports = {&files_,
             &dialogs_,
             &sound_,
             &clock_,
             &timer_,
             &recoveryTimer_,
             &pictures_,
             folder.toStdString(),
             15 * window_.screen()->size().width(),
             &figureTimer_,
             &json_};
    connectRooms();
    hooks.EndProgram = [] { QApplication::exit(); };
    window_.onEvent(Form_Load);
    recoveryCopy = {};
    window_.onEvent(findRecoveryCopies);
}

Program::~Program()
{
    Form_Terminate();
}
