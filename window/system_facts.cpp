#include "window/system_facts.h"

#include "core/action_log.h"
#include "platform/code_page.h"
#include "platform/ports.h"
#include "platform/qt/sdl_sound.h"

#include <QGuiApplication>
#include <QScreen>
#include <QSysInfo>

static QString screenText()
{
    const QScreen* const screen = QGuiApplication::primaryScreen();
    if (screen == nullptr)
        return "none";
    const QSize size = screen->size();
    return QString("%1 x %2, scale %3, by %4")
        .arg(size.width())
        .arg(size.height())
        .arg(screen->devicePixelRatio())
        .arg(QGuiApplication::platformName());
}

SystemFacts systemFacts()
{
    return {utf8FromCodePage(dateStamp(ports.clock->now())),
            ports.programFolder,
            ports.sound->device(),
            qVersion(),
            SdlSound::version(),
            QString("%1, %2 %3, %4")
                .arg(QSysInfo::prettyProductName(), QSysInfo::kernelType(), QSysInfo::kernelVersion(),
                     QSysInfo::currentCpuArchitecture())
                .toStdString(),
            screenText().toStdString()};
}
