#pragma once

/// One event of the user or of a timer. Handlers run to their end; a message box inside one lets others in,
/// so they nest. What must wait for the end of the running handler is left with atEndOfUserEvent().
class UserEvent {
public:
    UserEvent();
    ~UserEvent();
    UserEvent(const UserEvent&) = delete;
    UserEvent& operator=(const UserEvent&) = delete;
};

/// Runs `handler` when the outermost running event ends, at once if none runs. The same handler waits only
/// once.
void atEndOfUserEvent(void (*handler)());
