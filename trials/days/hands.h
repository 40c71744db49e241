#pragma once

#include "core/sheet_state_type.h"
#include "trials/days/chance.h"

#include <functional>
#include <optional>
#include <set>

/// Hands on the keyboard, which know what each key ought to do: told in another way than the program does,
/// by the keys that are held.
class Hands {
public:
    explicit Hands(Chance& chance) : chance_(chance) {}

    /// Presses or lets go one key by chance, in the main window or in the diagram's. What ought to be the
    /// newest entry that can be taken back afterwards, or nothing if the sheet was none the wiser.
    using OneEvent = std::function<void(const std::function<void()>&)>;
    UndoEntry play(const OneEvent& event, const bool& staleSampleKept);

    /// No key is held any more, and no key-up will come.
    void letGoOfAll()
    {
        held_.clear();
        down_.clear();
    }
    void guardEnds() { guarded_ = 0; }
    /// Another window has pressed keys.
    void lookAgain();
    /// The layer that the held keys ought to give.
    int layer() const;

private:
    int anyKey();
    UndoEntry press(int key, bool inDiagram, const OneEvent& event, const bool& staleSampleKept);
    UndoEntry letGo(int key, bool inDiagram, const OneEvent& event);

    Chance& chance_;
    std::set<int> down_;    ///< all that were pressed and not let go; a key-up without its press never comes
    std::set<int> held_;    ///< shift keys and Undo, as far as the program took them
    bool undoUsed_ = false; ///< a counter key went down since the Undo key did
    int guarded_ = 0;       ///< key that is not taken again yet
};
