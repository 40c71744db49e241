#pragma once

#include <QApplication>
#include <chrono>
#include <string>
#include <vector>

/// An application that knows how long each event keeps it from taking up the next one. What a nested event
/// loop of a dialog does counts for itself, and so does the time in which a busy machine gave no processor.
class WatchedApplication : public QApplication {
public:
    WatchedApplication(int& argc, char* argv[]);

    struct Report {
        long events = 0;
        long beyond20 = 0, beyond50 = 0; ///< events that took more than so many milliseconds
        double longest = 0;              ///< milliseconds
        std::string longestName;
        std::vector<std::string>
            hangs; ///< more than 100 milliseconds: how long, which event, what was called
    };
    const Report& report() const { return report_; }

    bool notify(QObject* receiver, QEvent* event) override;

private:
    using Clock = std::chrono::steady_clock;
    /// One event from an event loop, without the parts that a nested loop took.
    struct Handling {
        int level;
        QString name;
        bool running = false;
        Clock::time_point since{};
        double waitedSince = 0, workedSince = 0;
        double taken = 0;  ///< milliseconds so far
        double worked = 0; ///< of these, milliseconds of this thread on a processor
    };
    void begin(Handling& handling);
    void pause(Handling& handling);
    void judge(const Handling& handling);
    double waitedForProcessor() const;

    Handling* running_ = nullptr;
    int schedule_; ///< what the system tells of this thread's turns
    Report report_;
};
