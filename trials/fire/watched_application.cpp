#include "trials/fire/watched_application.h"

#include <QAbstractEventDispatcher>
#include <QMetaEnum>
#include <QThread>
#include <atomic>
#include <csignal>
#include <cstdio>
#include <cxxabi.h>
#include <execinfo.h>
#include <fcntl.h>
#include <memory>
#include <pthread.h>
#include <thread>
#include <unistd.h>

namespace {

constexpr double hang = 100; // milliseconds

// The watch on the other side: a thread that looks into the handler that takes too long.
std::atomic<long long> handledSince{0}; // nanoseconds of the clock; 0: nothing runs
std::atomic<bool> lookedInto{false};
void* calls[64];
int callCount = 0;
pthread_t eventThread;

void lookInto(int)
{
    callCount = backtrace(calls, 64);
}

void watch()
{
    for (;;) {
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        const long long since = handledSince;
        const long long now = std::chrono::steady_clock::now().time_since_epoch().count();
        if (since != 0 && now - since > static_cast<long long>(hang * 1e6) && !lookedInto.exchange(true))
            pthread_kill(eventThread, SIGUSR1);
    }
}

/// The names on the stack, innermost first, as far as they are the program's own.
std::string callNames()
{
    std::string names;
    const std::unique_ptr<char*, decltype(&free)> lines(backtrace_symbols(calls, callCount), free);
    for (int i = 2; i < callCount && names.size() < 900; ++i) {
        const std::string line = lines.get()[i];
        const auto from = line.find('('), to = line.find('+');
        if (from == std::string::npos || to == std::string::npos || to <= from + 1)
            continue;
        int status = 0;
        const std::unique_ptr<char, decltype(&free)> name(
            abi::__cxa_demangle(line.substr(from + 1, to - from - 1).c_str(), nullptr, nullptr, &status),
            free);
        const std::string plain = status == 0 ? name.get() : line.substr(from + 1, to - from - 1);
        names += " < " + plain.substr(0, plain.find('('));
    }
    return names;
}

} // namespace

WatchedApplication::WatchedApplication(int& argc, char* argv[])
    : QApplication(argc, argv),
      schedule_(open(("/proc/self/task/" + std::to_string(gettid()) + "/schedstat").c_str(), O_RDONLY))
{
    void* loaded[1];
    backtrace(loaded, 1); // its first call loads a library, which no signal handler may do
    eventThread = pthread_self();
    struct sigaction action {};
    action.sa_handler = lookInto;
    action.sa_flags = SA_RESTART;
    sigaction(SIGUSR1, &action, nullptr);
    std::thread(watch).detach();
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this, [this] {
        if (running_ != nullptr)
            pause(*running_); // it is a dialog that waits for the user
    });
}

/// Milliseconds in which this thread could have run and another one did.
double WatchedApplication::waitedForProcessor() const
{
    char text[100] = "";
    double ran = 0, waited = 0;
    if (pread(schedule_, text, sizeof text - 1, 0) > 0)
        std::sscanf(text, "%lf %lf", &ran, &waited);
    return waited / 1e6;
}

static double ownWork()
{
    timespec time{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

void WatchedApplication::begin(Handling& handling)
{
    handling.running = true;
    handling.since = Clock::now();
    handling.waitedSince = waitedForProcessor();
    handling.workedSince = ownWork();
    lookedInto = false;
    handledSince = handling.since.time_since_epoch().count();
}

void WatchedApplication::pause(Handling& handling)
{
    if (!handling.running)
        return;
    handledSince = 0;
    handling.running = false;
    const std::chrono::duration<double, std::milli> passed = Clock::now() - handling.since;
    handling.worked += ownWork() - handling.workedSince;
    handling.taken += passed.count() - (waitedForProcessor() - handling.waitedSince);
    if (handling.taken > hang)
        judge(handling);
    if (handling.taken > hang)
        handling.taken = handling.worked = 0; // told once
}

void WatchedApplication::judge(const Handling& handling)
{
    ++report_.events;
    report_.beyond20 += handling.taken > 20;
    report_.beyond50 += handling.taken > 50;
    if (handling.taken > report_.longest) {
        report_.longest = handling.taken;
        report_.longestName = handling.name.toStdString();
    }
    if (handling.taken > hang) {
        report_.hangs.push_back(std::to_string(static_cast<int>(handling.taken)) + " ms (" +
                                std::to_string(static_cast<int>(handling.worked)) + " ms of own work) in " +
                                handling.name.toStdString() + (lookedInto ? callNames() : ""));
        std::printf("hang: %s\n", report_.hangs.back().c_str());
        std::fflush(stdout);
    }
}

bool WatchedApplication::notify(QObject* receiver, QEvent* event)
{
    const int level = QThread::currentThread()->loopLevel();
    if (QThread::currentThread() != thread() || (running_ != nullptr && running_->level == level))
        return QApplication::notify(receiver, event); // a part of the event that is being handled
    Handling* const outer = running_;
    if (outer != nullptr)
        pause(*outer);
    const char* const kind = QMetaEnum::fromType<QEvent::Type>().valueToKey(event->type());
    Handling handling{
        level, QString("%1 of %2 %3").arg(kind, receiver->metaObject()->className(), receiver->objectName())};
    running_ = &handling;
    begin(handling);
    const bool taken = QApplication::notify(receiver, event);
    pause(handling);
    if (handling.taken > 0)
        judge(handling);
    running_ = outer;
    if (outer != nullptr)
        begin(*outer);
    return taken;
}
