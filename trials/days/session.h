#pragma once

#include "platform/fakes/hand_clock.h"
#include "platform/fakes/memory_files.h"
#include "platform/fakes/picture_recorder.h"
#include "platform/fakes/sound_recorder.h"
#include "trials/days/chance.h"
#include "trials/days/hands.h"
#include "trials/days/random_dialogs.h"
#include "trials/days/rules.h"

#include <functional>
#include <string>
#include <vector>

class Session;

/// What an event may do to the counts.
enum class Effect {
    none,     ///< neither they nor what can be taken back change
    counted,  ///< they change as what can be taken back does
    edited,   ///< they change otherwise: a move, a reset, a typed count, another order of the samples
    replaced, ///< another sheet may have taken their place
};

/// One thing that a user may do.
struct DayEvent {
    const char* name;
    int weight; ///< how often it comes, against the others
    Effect effect;
    std::function<bool()> isPossible;
    std::function<void(Session&)> happen;
};

/// The program on ports in memory, used by somebody who does whatever a window lets them do, day after day.
/// There may be only one at a time, since it works on the program's own records.
class Session {
public:
    explicit Session(unsigned seed);

    /// One more event. Throws BrokenRule if something is not as it must be afterwards.
    void step();
    const std::vector<std::string>& latestEvents() const { return latest_; }

    // For the events.
    Chance chance;
    MemoryFiles files;
    RandomDialogs dialogs{chance, files};
    /// One event of the user or of a timer.
    static void event(const std::function<void()>& handler);
    /// An entry of a menu: the menu takes the keyboard first.
    void fromMenu(const std::function<void()>& handler);
    void loseKeyboard();
    void runOutTimer();
    void runOutRecoveryTimer();
    /// The program is gone at once, its recovery copy just written, and is started again.
    void crash();
    /// The focus leaves the box that is edited for a control without a text of the sheet.
    void leaveBox();
    void playKeys();
    void pressOtherKey() { hands_.lookAgain(); }
    /// What somebody may type, and somewhere in it the caret.
    struct {
        EditedBox box = EditedBox::none;
        int index = 0;
    } focused; ///< the box that has the focus in Modify template mode
    std::string anyText();
    int caretIn(const std::string& text) { return chance.between(0, static_cast<int>(text.size())); }
    int anySlot() { return chance.oneIn(2) ? chance.between(1, 6) : chance.between(1, taxonSlots); }

private:
    void start();
    void placeProgramFiles();
    void mendDisk();
    void setFaults();
    const DayEvent& choose();
    void check(Effect effect, UndoEntry newest);
    void checkUnsavedWork(bool replaced, std::size_t linesBefore);
    void beginStretch();
    void saveAndReopen();

    SoundRecorder sound_;
    HandClock clock_;
    HandTimer timer_;
    HandTimer recoveryTimer_;
    HandTimer journalTimer_;
    HandTimer pauseTimer_;
    HandTimer deadlineTimer_;
    PictureRecorder pictures_;
    Hands hands_{chance};
    std::vector<DayEvent> mainEvents_, formEvents_;
    std::vector<std::string> latest_;
    int steps_ = 0;
    UndoEntry expectedNewest_;
    Counts countsBefore_;    ///< at the beginning of the stretch in which all can be taken back
    std::size_t onDisk_ = 0; ///< keptInFile() when there was nothing to save last
};

/// Events of the main window, of the diagram beside it, and of the windows above both.
std::vector<DayEvent> eventsOfMainWindow();
std::vector<DayEvent> eventsOfEditing();
std::vector<DayEvent> eventsOfDiagram();
std::vector<DayEvent> eventsOfForms();
std::vector<DayEvent> eventsOfKeyWindows();
