#include "core/action_log.h"
#include "core/highlight.h"
#include "core/program_test.h"
#include "core/show_sample.h"

#include <array>
#include <random>
#include <set>

namespace {

constexpr int samples = 3;
using Counts = std::array<std::array<int, taxonSlots + 1>, samples + 1>; ///< by sample and slot

/// A day of counting told in another way than the program does: as the list of counts that stand, from which
/// all is summed up anew.
class RandomDay : public ProgramTest {
protected:
    struct Standing {
        int sample, slot, sign;
    };
    std::vector<Standing> standing;
    std::set<int> held;    ///< shift keys and Undo
    bool undoUsed = false; ///< a counter key went down since the Undo key did
    int guarded = 0;       ///< key that is not taken again yet
    int current = 1;
    bool asks = true; ///< again after every change of sample, an Undo on another one too
    int pale = 0;
    Colour paleColour = plainRow;
    int justCounted = 0; ///< stays bold until the next sum, even at 0

    Counts logged{}; ///< what the lines of the log add up to
    std::size_t linesRead = 1;
    int loggedSample = 1;

    int layer() const { return static_cast<int>(held.count(shift1) + held.count(shift2)); }

    void press(int key, int keyNumber, bool yes)
    {
        const bool asked = keyNumber != 0 && key != guarded && current != samples && asks;
        if (asked)
            expectStaleQuestion(yes ? Answer::yes : Answer::no);
        if (key != guarded && keyNumber == 0) {
            undoUsed = undoUsed && (key != undoKey || held.count(undoKey) != 0);
            held.insert(key);
        } else if (key != guarded) {
            undoUsed = true;
            if (!asked || yes) {
                justCounted = pale = keyNumber + 45 * layer();
                standing.push_back({current, pale, held.count(undoKey) != 0 ? -1 : 1});
                paleColour = countedRow;
                asks = false;
            }
        }
        if (key != shift1 && key != shift2)
            guarded = key;
        down(key);
        if (asked) { // the message took the key-ups and outlasted the guard
            held.clear();
            guarded = 0;
        }
    }
    void letGo(int key)
    {
        if (held.count(undoKey) != 0 && !undoUsed) {
            justCounted = 0;
            if (!standing.empty()) {
                asks = asks || current != standing.back().sample;
                current = standing.back().sample;
                pale = standing.back().slot;
                paleColour = takenBackRow;
                standing.pop_back();
            }
        }
        held.erase(key);
        up(key);
    }
    void choose(int sample)
    {
        const UserEvent event;
        showSample(sample);
        logAction("(Change sample: " + frmMain.Combo2.text + ")");
        asks = true;
        current = sample;
        justCounted = 0;
    }

    void readLog()
    {
        for (; linesRead < sheet.ActionText.size(); ++linesRead) {
            const std::string& line = sheet.ActionText[linesRead];
            if (line.find("(Change sample: ") == 0) {
                loggedSample = wholeNumber(line.substr(16)) / 10;
                continue;
            }
            const std::string kind = line.substr(0, line.front() == '(' ? line.find(' ') + 1 : 0);
            logged.at(loggedSample).at(wholeNumber(line.substr(kind.size()))) +=
                kind.empty() || kind == "(Undo-amend) " ? 1 : -1;
        }
    }
    void check()
    {
        readLog();
        Counts counts{};
        for (const Standing& count : standing)
            counts[count.sample][count.slot] += count.sign;
        int all = 0;
        int subtotal = 0;
        for (int slot = 1; slot <= taxonSlots; ++slot) {
            for (int sample = 1; sample <= samples; ++sample) {
                ASSERT_EQ(counts[sample][slot], sheet.Count(sample, slot)) << sample << ", " << slot;
                ASSERT_EQ(logged[sample][slot], sheet.Count(sample, slot)) << sample << ", " << slot;
            }
            const int count = counts[current][slot];
            all += count;
            subtotal += slot % 2 == 0 ? count : 0;
            const bool bold = count != 0 || slot == justCounted;
            const Colour colour = slot == pale ? paleColour : plainRow;
            ASSERT_EQ(decimalText(count), frmMain.Text2[slot].text);
            for (const TextBox* box : {&frmMain.Text1[slot], &frmMain.Text2[slot]})
                ASSERT_TRUE(box->bold == bold && box->backColor == colour) << slot;
        }
        ASSERT_EQ(current, sheet.CurrentSample);
        ASSERT_EQ(decimalText(10 * current), frmMain.Combo2.text);
        ASSERT_EQ(decimalText(all), frmMain.Text3[0].text);
        ASSERT_EQ(decimalText(subtotal), frmMain.Text3[1].text);
        ASSERT_EQ(layer(), sheet.Layer);
        ASSERT_EQ(layer(), frmMain.SSTab1);
        ASSERT_EQ(sheet.ActionText.size(), sheet.ActionTime.size());
        static bool ranAtOnce;
        ranAtOnce = false;
        atEndOfUserEvent([] { ranAtOnce = true; });
        ASSERT_TRUE(ranAtOnce); // no event was left open
    }
};

} // namespace

TEST_F(RandomDay, leavesEveryCountWhereAFullRecomputationPutsIt)
{
    for (int slot = 2; slot <= taxonSlots; slot += 2)
        sheet.TaxonRecord[slot].Subtotal1 = "1";
    addSamples(samples);
    frmMain.Text1[0].text = frmMain.Combo2.text = "10";

    constexpr std::pair<int, int> counterKeys[] = {{'Q', 1},  {'W', 2},  {'X', 8},
                                                   {'M', 25}, {190, 27}, {'9', 45}};
    std::mt19937 random(20261115);
    const auto below = [&random](std::size_t limit) { return static_cast<int>(random() % limit); };
    for (int step = 0; step < 6000; ++step) {
        const auto [key, keyNumber] = counterKeys[below(std::size(counterKeys))];
        const int shift = below(2) == 0 ? shift1 : shift2;
        const int event = below(100);
        if (event < 45) {
            press(key, keyNumber, below(2) == 0);
        } else if (event < 60) {
            letGo(key);
        } else if (event < 70) {
            press(shift, 0, false);
        } else if (event < 80) {
            if (held.count(shift) != 0)
                letGo(shift);
        } else if (event < 86) {
            press(undoKey, 0, false);
        } else if (event < 92) {
            letGo(undoKey);
        } else if (event < 95) {
            runOutTimer();
            guarded = 0;
        } else if (event < 96) {
            Form_Deactivate();
            held.clear();
        } else {
            choose(below(samples) + 1);
        }
        ASSERT_NO_FATAL_FAILURE(check()) << "at step " << step;
    }
    EXPECT_GT(standing.size(), 200U); // something happened
}
