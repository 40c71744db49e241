#pragma once

#include <QObject>
#include <functional>

/// The system asks the program to end (SIGTERM, SIGHUP, SIGINT), or the session of the user ends. At most one
/// of these lives.
class EndSignals : public QObject {
public:
    /// `whenAsked` runs in the event loop, below whatever dialog is open, and should end the program.
    /// `beforeSessionEnds` keeps what is to be kept; the session may go on all the same.
    EndSignals(std::function<void()> whenAsked, std::function<void()> beforeSessionEnds);
    ~EndSignals() override;
};
