#include "platform/qt/end_signals.h"

#include <QGuiApplication>
#include <QSocketNotifier>

#if defined(Q_OS_UNIX)
#include <csignal>
#include <fcntl.h>
#include <sys/socket.h>
#include <unistd.h>

/// A signal handler may do no more than write a byte; the event loop reads it.
static int ends[2] = {-1, -1};

static void onSignal(int)
{
    const char byte = 0;
    [[maybe_unused]] const auto written = ::write(ends[0], &byte, 1);
}

static constexpr int endSignals[] = {SIGTERM, SIGHUP, SIGINT};
#endif

EndSignals::EndSignals(std::function<void()> whenAsked, std::function<void()> beforeSessionEnds)
{
    connect(qGuiApp, &QGuiApplication::commitDataRequest, this, std::move(beforeSessionEnds),
            Qt::DirectConnection);
#if defined(Q_OS_UNIX)
    if (::socketpair(AF_UNIX, SOCK_STREAM, 0, ends) != 0)
        return;
    for (const int end : ends)
        ::fcntl(end, F_SETFD, FD_CLOEXEC);
    auto* const notifier = new QSocketNotifier(ends[1], QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, std::move(whenAsked));
    for (const int number : endSignals)
        std::signal(number, onSignal);
#else
    Q_UNUSED(whenAsked)
#endif
}

EndSignals::~EndSignals()
{
#if defined(Q_OS_UNIX)
    for (const int number : endSignals)
        std::signal(number, SIG_DFL);
    for (int& end : ends) {
        ::close(end);
        end = -1;
    }
#endif
}
