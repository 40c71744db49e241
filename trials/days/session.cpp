#include "trials/days/session.h"

#include "app/wiring.h"
#include "core/built_in_keys.h"
#include "core/editing.h"
#include "core/endings.h"
#include "core/forms.h"
#include "core/hooks.h"
#include "core/main_keys.h"
#include "core/main_screen.h"
#include "core/number_text.h"
#include "core/sheet_state.h"
#include "core/start_up.h"
#include "core/user_event.h"
#include "diagram/diagram_form.h"
#include "extras/about.h"
#include "extras/diagnose.h"
#include "extras/pictures.h"
#include "figure/figure_form.h"
#include "files/left_work.h"
#include "files/new_sheet.h"
#include "files/next_sample.h"
#include "files/open_sheet.h"
#include "files/recovery.h"
#include "files/rename_info.h"
#include "files/sample_totals.h"
#include "files/save_sheet.h"
#include "files/sheet_text.h"
#include "keys/first_run.h"
#include "keys/key_commit.h"
#include "keys/key_editor.h"
#include "keys/key_note.h"
#include "sheet/find.h"
#include "sheet/modify_mode.h"
#include "sheet/percent_view.h"
#include "sheet/subtotals.h"
#include "sheet/summary.h"
#include "tables/table_form.h"
#include "tables/taxa_form.h"

#include <algorithm>
#include <numeric>

namespace {

bool ended = false;

bool isAnyCountAtLimit()
{
    for (int slot = 1; slot <= taxonSlots; ++slot)
        if (std::abs(std::int64_t{sheet.Count(sheet.CurrentSample, slot)}) > 2147483640)
            return true;
    return false;
}

/// Key settings in which each row counts its own number; as a person may have edited them by hand.
std::string keySettings(Chance& chance)
{
    std::string text;
    for (int row = 0; row < keySettingRows; ++row) {
        int code = row == 0              ? 0
                   : row <= keysPerLayer ? builtInKeyCode(row)
                   : row == rowShift2    ? builtInShift2
                   : row == rowUndo      ? builtInMinus
                   : row == rowSave      ? 187
                   : row < rowUndo       ? builtInShift1
                                         : 200 + row;
        if (row == rowShift1Copy && chance.oneIn(2))
            code = 250; // a key that is taken and counts nothing
        if (row == 7 && chance.oneIn(4))
            code = builtInKeyCode(8); // of two equal codes the last one counts
        text += "\"key\",\"" + decimalText(code) + "\",\"" +
                decimalText(chance.oneIn(30) ? chance.between(0, 50) : row) + "\"\r\n";
    }
    return text;
}

std::string fullSheet()
{
    SheetState full;
    full.SampleCount = sampleLimit - 1;
    full.SheetHeader[1][2] = "Last modified (dd/mm/yyyy):";
    for (int sample = 1; sample <= full.SampleCount; ++sample) {
        full.SampleField(sample, 1) = decimalText(sample);
        full.SampleField(sample, 2) = decimalText(5 * sample);
        full.Count(sample, 1 + sample % taxonSlots) = sample;
    }
    fillEmptyCells(full, {});
    return dataSheetText(full, *sampleTotals(full));
}

} // namespace

Session::Session(unsigned seed) : chance(seed)
{
    for (auto events : {eventsOfMainWindow, eventsOfEditing, eventsOfDiagram})
        for (DayEvent& one : events())
            mainEvents_.push_back(std::move(one));
    formEvents_ = eventsOfForms();
    for (DayEvent& one : eventsOfKeyWindows())
        formEvents_.push_back(std::move(one));
    files.contents["/home/full.csv"] = fullSheet();
    files.contents["/home/empty.csv"] = "";
    files.contents["/home/letter.csv"] = "Dear Sir,\r\nthis is no sheet.\r\n";
    dialogs.whenOpened = [this] {
        loseKeyboard();
        if (chance.oneIn(2)) // the box stays longer than the repeat guard
            runOutTimer();
    };
    start();
}

void Session::placeProgramFiles()
{
    files.contents.erase("/program/References/KeySetting.csv");
    if (!chance.oneIn(4))
        files.contents["/program/References/KeySetting.csv"] = keySettings(chance);
    for (const char* cue : {"Key-1", "Key-2", "Key-3", "Opening", "Undo", "Save", "Alarm", "Error"})
        files.contents[std::string("/program/Sound files/") + cue + ".wav"] = "RIFF";
    if (chance.oneIn(6))
        files.contents.erase("/program/Sound files/Alarm.wav");
    files.contents["/program/References/My_favorite.jpg"] = "\xFF\xD8\xFF";
}

void Session::start()
{
    sheet = SheetState();
    frmMain = MainScreen();
    frmDiagram = DiagramForm();
    frmNext = NextForm();
    frmSiteName = SampleForm();
    frmParaName = {};
    frmInitial = {};
    frmKeyCode = {};
    frmNote = {};
    frmSubtotal = {};
    frmSummary = {};
    frmTable = {};
    frmTaxa = {};
    frmFind = {};
    frmPicture = {};
    frmAboutApp = {};
    frmAboutDX1 = {};
    frmDiagnose = {};
    frmFigure = {};
    recoveryCopy = {};
    recoveryTimer_.stop();
    hooks = Hooks();
    connectRooms();
    hooks.EndProgram = [] { ended = true; };
    ports = {&files,     &dialogs,   &sound_, &clock_,        &timer_,      &recoveryTimer_,
             &pictures_, "/program", 15360,   &journalTimer_, &pauseTimer_, &deadlineTimer_};
    ended = false;
    hands_.letGoOfAll();
    hands_.guardEnds();
    placeProgramFiles();
    event(Form_Load);
    event(findRecoveryCopies);
    beginStretch();
    onDisk_ = keptInFile();
}

void Session::event(const std::function<void()>& handler)
{
    frmMain.notice.clear();
    {
        const UserEvent event;
        handler();
    }
    watchUnsavedWork();
    JournalTimer_Timer();
}

void Session::fromMenu(const std::function<void()>& handler)
{
    loseKeyboard();
    event(handler);
}

void Session::loseKeyboard()
{
    hands_.letGoOfAll();
    event([] {
        Form_Deactivate();
        Command6_MouseUp();
    });
}

void Session::runOutTimer()
{
    if (timer_.milliseconds == 0)
        return;
    hands_.guardEnds();
    event(Timer1_Timer);
}

void Session::runOutRecoveryTimer()
{
    if (recoveryTimer_.milliseconds == 0)
        return;
    recoveryTimer_.stop();
    RecoveryTimer_Timer();
}

void Session::crash()
{
    mendDisk();
    runOutRecoveryTimer();
    const bool copied = recoveryCopy.onDisk && !holdsQuotationMark();
    const std::size_t lost = keptInFile();
    dialogs.purpose = "/home/round.csv"; // what was lost is taken up
    start();
    for (int place = 1; place <= recoveryPlaces && keptInFile() != lost; ++place) {
        // One that was declined while the disk was full has stayed in its place and is offered first.
        files.remove(recoveryJournalPath(recoveryCopy.place));
        files.remove(recoveryCopyPath(recoveryCopy.place));
        start();
    }
    dialogs.purpose.reset();
    require(!copied || keptInFile() == lost, "what a crash took comes back");
}

void Session::leaveBox()
{
    if (!sheet.Modifying)
        return;
    focused = {};
    frmMain.focus = MainFocus::elsewhere;
    event(leaveEditedBox);
}

void Session::playKeys()
{
    expectedNewest_ = hands_.play(event, dialogs.staleSampleKept);
}

std::string Session::anyText()
{
    constexpr const char* texts[] = {
        "Quercus", "quercus",  "Poaceae", "Pinus, s.l.", "\"Pinus\"",   "say \"x\"",   "#",          "3",
        "2",       "'",        "",        "-",           "---",         " ",           "  end ",     "10",
        "10.0",    "25",       "-5",      "12.5",        "012",         "-9999",       "0",          "12 cm",
        "1E5",     "100000",   "32767",   "2147483647",  "-2147483648", "99999999999", "M\xF6\xF6r", "1,2",
        "99",      "16777217", "7"};
    if (chance.oneIn(3))
        return decimalText(chance.below(300));
    if (chance.oneIn(60))
        return std::string(static_cast<std::size_t>(chance.between(100, 400)), 'w');
    return chance.oneOf(texts);
}

void Session::mendDisk()
{
    files.room = SIZE_MAX;
    files.closeFails = false;
    files.unwritable.clear();
}

void Session::setFaults()
{
    mendDisk();
    switch (chance.below(40)) {
    case 0:
        files.room = static_cast<std::size_t>(chance.below(20000));
        break;
    case 1:
        files.closeFails = true;
        break;
    case 2:
        for (const auto& [path, bytes] : files.contents)
            files.unwritable.insert(path);
        break;
    default:
        break;
    }
}

const DayEvent& Session::choose()
{
    const std::vector<DayEvent>& events = !isMainEnabled() ? formEvents_ : mainEvents_;
    std::vector<const DayEvent*> possible;
    int weights = 0;
    for (const DayEvent& one : events)
        if (one.isPossible()) {
            possible.push_back(&one);
            weights += one.weight;
        }
    int at = chance.below(weights);
    for (const DayEvent* one : possible)
        if ((at -= one->weight) < 0)
            return *one;
    return *possible.back();
}

void Session::step()
{
    ++steps_;
    clock_.moment.millisecond = steps_ % 1000;
    clock_.moment.second = steps_ / 1000 % 60;
    clock_.moment.minute = steps_ / 60000 % 60;
    sound_.played.clear();
    pictures_.copied.clear();
    dialogs.forgetAnswers();
    setFaults();

    const DayEvent& one = choose();
    latest_.push_back(one.name);
    if (latest_.size() > 100)
        latest_.erase(latest_.begin());
    expectedNewest_ = sheet.UndoStack[0];
    const std::size_t lines = sheet.ActionText.size();
    const bool below = !isMainEnabled();
    one.happen(*this);
    if (!sheet.Modifying) {
        focused = {};
    } else if (frmMain.focus == MainFocus::Text99 && focused.box != EditedBox::none) {
        leaveBox();
    } else if (frmMain.focus == MainFocus::Text4 && focused.box != EditedBox::Text4) {
        focused = {EditedBox::Text4, 0};
        event(Text4_GotFocus);
    }
    if (!isMainEnabled() && !below) // it takes the keyboard
        loseKeyboard();
    if (ended) {
        event(Form_Terminate);
        require(!frmNext.visible && !frmSiteName.visible && !frmParaName.visible && !sheet.DiagramOpen,
                "all windows go at the end");
        start();
        return;
    }
    if (one.effect == Effect::replaced)
        hands_.lookAgain();
    if (one.effect == Effect::replaced || one.effect == Effect::edited)
        beginStretch();
    check(one.effect, expectedNewest_);
    checkUnsavedWork(one.effect == Effect::replaced, lines);
    if (steps_ % 1000 == 0)
        saveAndReopen();
}

void Session::beginStretch()
{
    countsBefore_ = countsBeforeUndo();
}

void Session::check(Effect effect, UndoEntry newest)
{
    checkWhatIsAlwaysTrue();
    if (!sheet.Modifying && isMainEnabled())
        require(sheet.Layer == hands_.layer(), "the layer of the keys that are held");
    const UndoEntry& found = sheet.UndoStack[0];
    if (effect == Effect::none)
        require(found.sample == newest.sample && found.slot == newest.slot,
                "the newest count that can be taken back");
    // A key that counts nothing stops Undo; beyond a thousand counts the oldest is forgotten; a count at the
    // limit of its 32 bits stays there.
    if ((found.slot == 0 && sheet.UndoStack[1].slot != 0) || sheet.UndoStack.back().slot != 0 ||
        isAnyCountAtLimit())
        beginStretch();
    require(countsBeforeUndo() == countsBefore_, "what can be taken back leads to the earlier counts");
}

void Session::checkUnsavedWork(bool replaced, std::size_t linesBefore)
{
    if (hasUnsavedWork() || frmSubtotal.visible) // that form's changes are told at its end
        return;
    const auto& log = sheet.ActionText;
    const bool saved =
        std::any_of(log.begin() + static_cast<std::ptrdiff_t>(std::min(linesBefore, log.size())), log.end(),
                    [](const std::string& line) { return line.starts_with("(Save"); });
    if (replaced || saved)
        onDisk_ = keptInFile();
    require(onDisk_ == keptInFile(), "what is not in the file is work to save");
}

void Session::saveAndReopen()
{
    while (!isMainEnabled())
        event([] {
            if (frmNote.visible)
                frmNote_Command1_Click();
            else if (frmKeyCode.visible)
                frmKeyCode_Command1_Click();
            else if (frmInitial.visible)
                closeInitial();
            else if (frmParaName.visible)
                frmParaName_Command2_Click();
            else if (frmNext.visible)
                frmNext_Command3_Click();
            else if (frmSiteName.visible)
                frmSiteName_Command3_Click();
            else if (frmSubtotal.visible)
                frmSubtotal_Command3_Click();
            else if (frmSummary.visible)
                frmSummary_Unload();
            else if (frmTable.visible)
                frmTable_Command2_Click();
            else if (frmTaxa.visible)
                frmTaxa_Command2_Click();
            else if (frmFind.visible)
                frmFind_Command2_Click();
            else if (frmPicture.visible)
                closePicture();
            else if (frmAboutApp.visible)
                frmAboutApp_Command1_Click();
            else if (frmAboutDX1.visible)
                frmAboutDX1_Command1_Click();
            else
                frmDiagnose_Command2_Click();
        });
    if (sheet.Modifying)
        event(mnuFinishAmend_Click);
    loseKeyboard();
    mendDisk();
    dialogs.forgetAnswers();
    dialogs.purpose = "/home/round.csv";
    fromMenu(mnuSaveAs_Click);
    require(dialogs.failureTold == !sampleTotals(sheet),
            "a save fails for totals that no file can hold, and only then");
    if (!dialogs.failureTold && !holdsQuotationMark()) {
        const SheetState saved = sheet;
        const std::string bytes = files.contents["/home/round.csv"];
        fromMenu(mnuOpen_Click);
        requireSameSheet(saved, sheet);
        require(!hasUnsavedWork(), "an opened sheet needs no save");
        fromMenu(mnuSaveAs_Click);
        require(files.contents["/home/round.csv"] == bytes, "an opened sheet is saved as it was");
    }
    dialogs.purpose.reset();
    beginStretch();
    onDisk_ = keptInFile();
    checkWhatIsAlwaysTrue();
}
