#include "trials/days/rules.h"

#include "core/forms.h"
#include "core/highlight.h"
#include "core/main_screen.h"
#include "core/number_text.h"
#include "core/sheet_state.h"
#include "core/show_sample.h"
#include "core/user_event.h"
#include "diagram/diagram_form.h"
#include "files/sheet_on_screen.h"
#include "sheet/find.h"

#include <algorithm>
#include <cstdlib>
#include <functional>

void require(bool held, const char* rule, int at)
{
    if (!held)
        throw BrokenRule(rule + (at < 0 ? std::string() : ", " + decimalText(at)));
}

namespace {

/// The name of the sample on show is being typed: list and tables follow when it is left.
bool isNameVisited()
{
    return sheet.Edited == EditedBox::Text1 && sheet.EditedIndex == 0;
}

void checkCells()
{
    int pale = 0;
    for (int slot = 1; slot <= taxonSlots; ++slot) {
        const TextBox& name = frmMain.Text1[slot];
        const TextBox& count = frmMain.Text2[slot];
        const std::int32_t stored = sheet.Count(sheet.CurrentSample, slot);
        require(name.text == sheet.TaxonRecord[slot].Name, "name in box and table", slot);
        require(sheet.TaxonRecord[slot].KeyIndex == decimalText(slot), "key index", slot);
        require(sheet.TaxonRecord[slot].RowNumber == decimalText(slot), "row number", slot);
        if (sheet.KeysActive) {
            require(count.text == decimalText(stored), "count in box and table", slot);
            // A reverse count that brings a taxon to 0 leaves its row bold until the next sum.
            require(count.bold == (stored != 0) || (stored == 0 && slot == sheet.HighlightRow), "bold count",
                    slot);
        }
        require(name.bold == count.bold, "bold name", slot);
        require(name.backColor == count.backColor, "colours", slot);
        if (name.backColor != plainRow)
            pale = slot;
        require(frmFind.visible || pale == 0 || pale == sheet.HighlightRow, "one pale row, not", slot);
    }
}

void checkTotals()
{
    std::int64_t sums[3] = {};
    for (int slot = 1; slot <= taxonSlots; ++slot) {
        const TaxonFields& taxon = sheet.TaxonRecord[slot];
        const std::int64_t count = sheet.Count(sheet.CurrentSample, slot);
        sums[0] += count;
        sums[1] += leadingNumber(taxon.Subtotal1) == 1 ? count : 0;
        sums[2] += leadingNumber(taxon.Subtotal2) == 1 ? count : 0;
    }
    require(sheet.SampleTotal == within32Bits(sums[0]), "all total in the table");
    for (int total = 0; total < 3 && sheet.KeysActive; ++total)
        require(frmMain.Text3[total].text == decimalText(within32Bits(sums[total])), "total", total);
}

void checkSamples()
{
    require(sheet.SampleCount >= 1 && sheet.SampleCount < sampleColumns, "number of samples");
    require(sheet.CurrentSample >= 1 && sheet.CurrentSample <= sheet.SampleCount, "sample on show");
    const int sample = sheet.CurrentSample;
    require(orDashes(frmMain.Text4.text) == orDashes(sheet.SampleNote(sample, 0)), "note");
    for (int item = 1; item <= infoItems; ++item) {
        const bool visited = sheet.Edited == EditedBox::Text5 && sheet.EditedIndex == item;
        require(visited || frmMain.Text5[item].text == orDashes(sheet.AdditionalInfo(sample, item)),
                "additional info", item);
    }
    for (int date = 1; date <= 3; ++date)
        require(frmMain.Label14[date - 1].caption == orDashes(sheet.SampleStamp(sample, date)), "date", date);
    require(frmMain.Label4.caption == sheet.SampleField(sample, 1) + "/" + decimalText(sheet.LatestSerial),
            "serial number");
    require(frmMain.Text1[0].text == sheet.SampleField(sample, 2), "name of the sample in its box");
    require(frmMain.Combo2.text == sheet.SampleField(sample, 2), "name of the sample in the list's box");
    if (isNameVisited() || (sheet.SampleCount == 1 && frmMain.Combo2.items.empty()))
        return;
    require(static_cast<int>(frmMain.Combo2.items.size()) == sheet.SampleCount,
            "length of the list of samples");
    for (int i = 1; i <= sheet.SampleCount; ++i)
        require(frmMain.Combo2.items[static_cast<std::size_t>(i) - 1] == sheet.SampleField(i, 2),
                "list of samples at", i);
}

void checkMaps()
{
    for (int i = 1; i <= taxonSlots; ++i)
        require(sheet.RowOfKeyIndex[sheet.KeyIndexOfRow[i]] == i &&
                    sheet.KeyIndexOfRow[sheet.RowOfKeyIndex[i]] == i,
                "rows and key indexes are inverse at", i);
}

void checkUndoAndLog()
{
    for (const UndoEntry& entry : sheet.UndoStack)
        require(std::abs(entry.slot) <= taxonSlots &&
                    (entry.slot == 0 || (entry.sample >= 1 && entry.sample <= sheet.SampleCount)),
                "what can be taken back is in the sheet");
    require(sheet.UndoStack[0].slot == 0 || frmMain.mnuUndo.enabled || sheet.Modifying, "Undo is offered");
    const auto last = static_cast<std::size_t>(sheet.ActionCount);
    require(sheet.ActionText.size() == last + 1 && sheet.ActionTime.size() == last + 1, "length of the log");
    require(frmMain.Text7.text.ends_with(frmMain.Combo1.text), "last line of the history");
    require(frmMain.Combo1.items.back() == frmMain.Combo1.text, "last action");
    require(last == 0 || sheet.ActionText.back() == frmMain.Combo1.text, "last action in the log");
}

void checkModesAndWindows()
{
    const bool counting = !sheet.Modifying;
    for (const MenuEntry* entry : {&frmMain.mnuStartAmend, &frmMain.mnuFind})
        require(entry->enabled == counting, "entries of the counting mode");
    require(frmMain.Command3[0].enabled == counting && frmMain.Command3[1].enabled == sheet.Modifying,
            "Modify, Resume");
    require(frmMain.sheetColour.has_value() == sheet.Modifying, "colour of the mode");
    require(frmMain.Text4.enabled == sheet.Modifying, "note can be typed");
    for (const Button* button :
         {&frmMain.Command2[0], &frmMain.Command4[0], &frmMain.Command5[0], &frmMain.Command5[1]})
        require(counting || !button->enabled, "a button of the counting mode");
    for (const MenuEntry* entry :
         {&frmMain.mnuSave, &frmMain.mnuOpen, &frmMain.mnuNext, &frmMain.mnuUndo, &frmMain.mnuReset})
        require(counting || !entry->enabled, "an entry of the counting mode");
    require(frmMain.Command5[0].enabled == frmMain.mnuSave.enabled, "Save by button and menu");
    require(sheet.Edited == EditedBox::none || sheet.Modifying, "a box is visited in its mode only");

    require(frmMain.visible || !isMainEnabled(),
            "on a first run a form stands where the main window will be");
    require(!frmMain.ProgressBar1.visible && frmMain.pointer != Pointer::hourglass, "work that was ended");
    require(frmMain.SSTab1 >= 0 && frmMain.SSTab1 <= 2 && sheet.Layer >= 0 && sheet.Layer <= 2,
            "page and layer");
    require(std::count_if(frmMain.Option1.begin(), frmMain.Option1.end(),
                          [](const OptionButton& option) { return option.selected; }) == 1,
            "one basis");
    static bool ranAtOnce;
    ranAtOnce = false;
    atEndOfUserEvent([] { ranAtOnce = true; });
    require(ranAtOnce, "no event was left open");
}

void checkDiagram()
{
    const DiagramForm& f = frmDiagram;
    if (!sheet.DiagramOpen) {
        require(!f.picture2Visible && !f.LineDragging && !f.MovingSample, "a closed diagram rests");
        return;
    }
    require(sheet.SampleCount > 1, "a diagram of several samples");
    require(f.Slider1.value >= 1 && f.Slider1.value <= sheet.SampleCount, "sample chosen in the diagram");
    require(f.DiagramSample >= 1 && f.DiagramSample <= sheet.SampleCount, "where the step buttons start");
    require(static_cast<int>(f.plot.DepthRank.size()) == sheet.SampleCount + 1, "samples of the diagram");
    require(static_cast<int>(f.Combo2.items.size()) == sheet.SampleCount, "list of samples in the diagram");
    require(f.HScroll1.value >= 0 && f.HScroll1.value <= f.HScroll1.max, "scroll bar");
    require(f.Slider2.value >= 1 && f.Slider2.value <= 10, "zoom");
    require(f.Picture1.scale.width > 0 && f.Picture1.scale.height > 0, "scale of the diagram");
    require(f.nmuConiss.checked == f.picture2Visible, "dendrogram and its mark");
    require(!f.picture2Visible || f.merges.merges() == sheet.SampleCount - 1, "merges of all samples");
}

class Signature {
public:
    void add(std::string_view text) { add(std::hash<std::string_view>()(text)); }
    void add(std::size_t number) { sum_ = (sum_ ^ number) * 1099511628211U; }
    std::size_t value() const { return sum_; }

private:
    std::size_t sum_ = 14695981039346656037U;
};

/// A file keeps it without its colon, and an empty one not at all.
std::string keptCaption(int item)
{
    std::string caption = frmMain.Label10[item].caption;
    while (caption.ends_with(':'))
        caption.pop_back();
    return caption.empty() ? "Additional info-" + decimalText(item) : caption;
}

/// A name as good as none becomes the sign for none with the next sum.
std::string keptName(const std::string& name)
{
    return name.empty() || name == "-" || name == "--" || name == " " || name == "  " ? "---" : name;
}

} // namespace

void checkWhatIsAlwaysTrue()
{
    checkSamples();
    checkCells();
    checkTotals();
    checkMaps();
    checkUndoAndLog();
    checkModesAndWindows();
    checkDiagram();
}

std::size_t keptInFile()
{
    Signature kept;
    for (const int column : {2, 3})
        kept.add(sheet.SheetHeader[2][column]);
    for (int slot = 1; slot <= taxonSlots; ++slot) {
        const TaxonFields& taxon = sheet.TaxonRecord[slot];
        for (const std::string& field : {taxon.Subtotal1, taxon.Subtotal2, keptName(taxon.Name)})
            kept.add(field);
        kept.add(static_cast<std::size_t>(sheet.KeyIndexOfRow[slot]));
        for (int sample = 1; sample <= sheet.SampleCount; ++sample)
            kept.add(static_cast<std::size_t>(sheet.Count(sample, slot)));
    }
    for (int item = 1; item <= infoItems; ++item)
        kept.add(keptCaption(item));
    for (int sample = 1; sample <= sheet.SampleCount; ++sample) {
        kept.add(sheet.SampleField(sample, 1));
        kept.add(sheet.SampleField(sample, 2));
        kept.add(orDashes(sheet.SampleNote(sample, 0)));
        for (int item = 1; item <= infoItems; ++item)
            kept.add(orDashes(sheet.AdditionalInfo(sample, item)));
        for (int date = 1; date <= 3; ++date)
            kept.add(orDashes(sheet.SampleStamp(sample, date)));
    }
    return kept.value();
}

Counts countsBeforeUndo()
{
    Counts counts(static_cast<std::size_t>(sheet.SampleCount) + 1);
    for (int slot = 1; slot <= taxonSlots; ++slot)
        for (int sample = 1; sample <= sheet.SampleCount; ++sample)
            counts[sample][slot] = sheet.Count(sample, slot);
    for (const UndoEntry& entry : sheet.UndoStack) {
        if (entry.slot == 0) // what lies below is out of reach
            break;
        counts[entry.sample][std::abs(entry.slot)] -= entry.slot > 0 ? 1 : -1;
    }
    return counts;
}

bool holdsQuotationMark()
{
    const auto hasMark = [](const std::string& text) { return text.find('"') != std::string::npos; };
    const auto anyOf = [&](const auto& texts) { return std::any_of(texts.begin(), texts.end(), hasMark); };
    const auto anyRow = [&](const auto& rows) { return std::any_of(rows.begin(), rows.end(), anyOf); };
    if (anyOf(sheet.SheetHeader[2]) || anyOf(sheet.NoteHeader) || anyRow(sheet.AdditionalHeader) ||
        anyRow(sheet.DateHeader))
        return true;
    for (const TaxonFields& taxon : sheet.TaxonRecord)
        if (hasMark(taxon.Name))
            return true;
    for (int sample = 1; sample <= sheet.SampleCount; ++sample) {
        bool found = hasMark(sheet.SampleNote(sample, 0)) || hasMark(sheet.SampleField(sample, 2));
        for (int item = 1; item <= infoItems; ++item)
            found = found || hasMark(sheet.AdditionalInfo(sample, item)) ||
                    hasMark(sheet.AdditionalInfo(0, item));
        for (int date = 1; date <= 3; ++date)
            found = found || hasMark(sheet.SampleStamp(sample, date));
        if (found)
            return true;
    }
    return false;
}

void requireSameSheet(const SheetState& saved, const SheetState& opened)
{
    require(saved.SampleCount == opened.SampleCount && opened.CurrentSample == opened.SampleCount,
            "number of samples");
    require(saved.KeyIndexOfRow == opened.KeyIndexOfRow, "order of the rows");
    require(saved.SheetHeader[2] == opened.SheetHeader[2], "names of the subtotals");
    for (int slot = 1; slot <= taxonSlots; ++slot) {
        const TaxonFields& one = saved.TaxonRecord[slot];
        const TaxonFields& other = opened.TaxonRecord[slot];
        require(one.Name == other.Name && one.Subtotal1 == other.Subtotal1 &&
                    one.Subtotal2 == other.Subtotal2,
                "taxon", slot);
        for (int sample = 1; sample <= saved.SampleCount; ++sample)
            require(saved.Count(sample, slot) == opened.Count(sample, slot), "counts of taxon", slot);
    }
    for (int sample = 1; sample <= saved.SampleCount; ++sample) {
        for (const int row : {1, 2})
            require(saved.SampleField(sample, row) == opened.SampleField(sample, row),
                    "name and serial number", sample);
        require(orDashes(saved.SampleNote(sample, 0)) == opened.SampleNote(sample, 0), "note", sample);
        for (int item = 1; item <= infoItems; ++item)
            require(orDashes(saved.AdditionalInfo(sample, item)) == opened.AdditionalInfo(sample, item),
                    "additional info", sample);
        for (int date = 1; date <= 3; ++date)
            require(orDashes(saved.SampleStamp(sample, date)) == opened.SampleStamp(sample, date), "dates",
                    sample);
    }
}
