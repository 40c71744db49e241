// A whole day at the microscope on the plain program: its file must hold exactly what was counted.

#include "app/wiring.h"
#include "core/editing.h"
#include "core/endings.h"
#include "core/program_test.h"
#include "core/transfer_taxa.h"
#include "files/new_sheet.h"
#include "files/next_sample.h"
#include "files/open_sheet.h"
#include "files/save_sheet.h"
#include "sheet/modify_mode.h"

#include <algorithm>

namespace {

struct Sample {
    int depth;
    int serial;
    std::array<int, taxonSlots + 1> counts{};
};

class Day : public ProgramTest {
protected:
    const std::string path = "/home/day.csv";
    std::vector<Sample> expected; ///< in depth order
    Sample* current = nullptr;
    std::array<std::string, taxonSlots + 1> names;

    Day()
    {
        connectRooms();
        names.fill("---");
        frmSiteName = SampleForm();
        frmNext = NextForm();
    }

    void add(int depth)
    {
        if (expected.empty()) {
            mnuNew_Click();
            frmSiteName.Text1.text = decimalText(depth);
            frmSiteName_Command1_Click();
        } else {
            mnuNext_Click();
            frmNext.Text1.text = decimalText(depth);
            frmNext_Command1_Click();
        }
        const int serial = static_cast<int>(expected.size()) + 1;
        const auto place =
            std::upper_bound(expected.begin(), expected.end(), depth,
                             [](int value, const Sample& sample) { return value < sample.depth; });
        current = &*expected.insert(place, Sample{depth, serial});
    }
    /// Presses a key of the built-in map on a layer, `times` up or down.
    void count(int key, int slot, int times)
    {
        const int layer = (slot - 1) / keysPerLayer;
        for (int held = 0; held < layer; ++held)
            down(16 + held);
        if (times < 0)
            down(8);
        tap(key, std::abs(times));
        if (times < 0)
            up(8);
        for (int held = 0; held < layer; ++held)
            up(16 + held);
        current->counts[slot] += times;
    }
    void save()
    {
        if (sheet.SheetPath.empty())
            dialogs.paths.push_back(path);
        mnuSave_Click();
    }
    /// Back at the desk: a taxon gets its name, a count is corrected by hand, and a row is moved.
    void edit()
    {
        mnuStartAmend_Click();
        Text1_GotFocus(1);
        Text1_Edited(1, "Quercus", 7);
        names[1] = "Quercus";
        Text2_GotFocus(93);
        Text2_Edited(93, "12", 2);
        current->counts[93] = 12;
        Text1_GotFocus(47);
        Text1_Edited(47, "Abies", 5);
        sheet.MoveSource = 47;
        TransferTaxa(60);
        names[60] = "Abies";
        for (Sample& sample : expected) {
            sample.counts[60] = sample.counts[47];
            sample.counts[47] = 0;
        }
        tap('Q'); // counts nothing here
        mnuFinishAmend_Click();
    }
    std::string expectedTaxa() const
    {
        std::string text;
        for (int slot = 1; slot <= taxonSlots; ++slot) {
            text += decimalText(slot) + ",0,0,\"" + names[slot] + "\"";
            for (const Sample& sample : expected)
                text += "," + decimalText(sample.counts[slot]);
            text += "\r\n";
        }
        return text;
    }
    std::string expectedHeads() const
    {
        std::string serials = "\"Serial No.\"";
        std::string depths = "\"Key index\",\"Subtotal-1\",\"Subtotal-2\",\"Sample name\"";
        for (const Sample& sample : expected) {
            serials += ",\"" + decimalText(sample.serial) + "\"";
            depths += ",\"" + decimalText(sample.depth) + "\"";
        }
        return serials + "\r\n" + depths + "\r\n";
    }
};

} // namespace

TEST_F(Day, endsWithExactlyTheFileOfWhatWasCounted)
{
    dialogs.expect("This action will abort current data. Do you proceed?", "Caution!", Answer::yes);
    for (int i = 0; i < 30; ++i) {
        add((i * 37) % 30 * 5); // up and down the core
        count('Q', 1, 3 + i % 4);
        count('W', 47, 2);
        count('E', 93, 1 + i % 3);
        count('Q', 1, -1);
        if (i % 6 == 5) { // a slip that is taken back, and one that is thrown away
            tap('A', 2);
            tap(8);
            tap(8);
            save();
            tap('S', 7);
            dialogs.expect("This action will abort all inputs after last saving. Do you proceed?", "Caution!",
                           Answer::yes);
            AbortCount();
        }
        if (i == 15)
            edit();
        save();
        if (i % 10 == 9) { // lunch: closed and opened again
            sheet.SheetPristine = true;
            dialogs.paths.push_back(path);
            mnuOpen_Click();
        }
    }
    const std::string text = files.contents.at(path);
    EXPECT_NE(text.find(expectedHeads()), std::string::npos);
    EXPECT_NE(text.find(expectedTaxa()), std::string::npos);
}
