#include "statistics/laboratory.h"

#include "core/main_screen.h"
#include "core/number_text.h"
#include "core/sheet_name.h"
#include "core/sheet_state.h"
#include "files/fingerprint.h"
#include "files/recorded_sheet.h"
#include "platform/code_page.h"
#include "platform/ports.h"

#include <algorithm>

Laboratory laboratory;

namespace {

constexpr std::string_view labEnding = ".lab.csv";

constexpr std::size_t labLimit = 16u << 20; // the fullest sheet has less than 64 kilobytes

const char* const dialogTitle = "Laboratory data";

int serialOf(int sample)
{
    return wholeNumber(sheet.SampleField(sample, 1));
}

void tell(const std::string& text)
{
    ports.dialogs->ask(text, dialogTitle, Buttons::ok, Icon::exclamation);
}

/// Whether a file is there that may not be readable.
bool isThere(const std::string& path)
{
    const std::size_t separator = path.find_last_of("\\/");
    if (separator == std::string::npos)
        return false;
    const auto names = ports.files->list(path.substr(0, separator));
    return std::find(names.begin(), names.end(), path.substr(separator + 1)) != names.end();
}

bool hasData()
{
    return !laboratory.marker.empty() || !laboratory.samples.empty();
}

LabSample* knownSample(int serial)
{
    const auto found = std::find_if(laboratory.samples.begin(), laboratory.samples.end(),
                                    [serial](const LabSample& one) { return one.serial == serial; });
    return found == laboratory.samples.end() || serial == 0 ? nullptr : &*found;
}

/// The names of the samples as they are now. True if one was another.
bool takeNames()
{
    bool changed = false;
    for (int sample = 1; sample <= sheet.SampleCount; ++sample)
        if (LabSample* const known = knownSample(serialOf(sample));
            known != nullptr && known->row.sample != sheet.SampleField(sample, 2)) {
            known->row.sample = sheet.SampleField(sample, 2);
            changed = true;
        }
    return changed;
}

/// Whether the file may be written: it holds what it is known to hold. A file that is not there is made, so
/// that one which only cannot be read is not taken for missing.
bool mayWrite()
{
    auto now = fingerprintOfFile(laboratory.path);
    if (!now && ports.files->create(laboratory.path)) {
        now = fingerprintOfFile(laboratory.path);
        if (now && now->size == 0)
            return true;
    }
    return now && (now == laboratory.known || (!laboratory.known && now->size == 0));
}

void write()
{
    if (laboratory.path.empty() || !laboratory.trouble.empty())
        return;
    if (!laboratory.known && !hasData())
        return;
    laboratory.unsaved = true;
    takeNames();
    if (!mayWrite()) {
        if (fingerprintOfFile(laboratory.path)) {
            laboratory.trouble = "Another program has changed " + toCodePageFromUtf8(laboratory.path) +
                                 ". It stays as it is; open the sheet again to read it.";
            tell(laboratory.trouble);
        } else {
            tell("The laboratory data cannot be written: " + toCodePageFromUtf8(laboratory.path));
        }
        return;
    }
    std::vector<LabRow> rows;
    for (const LabSample& one : laboratory.samples)
        rows.push_back(one.row);
    const std::string text = labText(laboratory.marker, rows);
    if (!ports.files->replace(laboratory.path, text)) {
        tell("The laboratory data cannot be written: " + toCodePageFromUtf8(laboratory.path));
        return;
    }
    laboratory.known = fingerprintOf(text);
    laboratory.unsaved = false;
}

/// Joins the rows of a file with the samples of those names. Of equal names the first sample has the first
/// row; a row without a sample is kept.
void takeRows(std::vector<LabRow> rows)
{
    for (LabRow& row : rows) {
        LabSample known{0, std::move(row)};
        for (int sample = 1; sample <= sheet.SampleCount && known.serial == 0; ++sample)
            if (sheet.SampleField(sample, 2) == known.row.sample && knownSample(serialOf(sample)) == nullptr)
                known.serial = serialOf(sample);
        laboratory.samples.push_back(std::move(known));
    }
}

LabSample& sampleToFill(int sample)
{
    if (LabSample* const known = knownSample(serialOf(sample)))
        return *known;
    laboratory.samples.push_back({serialOf(sample), {sheet.SampleField(sample, 2), {}}});
    return laboratory.samples.back();
}

} // namespace

void readLaboratory()
{
    laboratory = {};
    if (ownPath(sheet).empty())
        return;
    laboratory.path = fileBeside(sheet.SheetPath, labEnding);
    const auto bytes = ports.files->read(laboratory.path, labLimit);
    if (!bytes) {
        if (isThere(laboratory.path)) {
            laboratory.trouble = "The laboratory data in " + toCodePageFromUtf8(laboratory.path) +
                                 " cannot be read and stay as they are.";
            tell(laboratory.trouble);
        }
        return;
    }
    laboratory.known = fingerprintOf(*bytes);
    LabTable table = readLabText(fileTextInCodePage(*bytes));
    if (!table.fault.empty()) {
        laboratory.trouble = "The laboratory data in " + toCodePageFromUtf8(laboratory.path) +
                             " cannot be read and stay as they are: " + table.fault + ".";
        tell(laboratory.trouble);
        return;
    }
    laboratory.marker = table.marker;
    takeRows(std::move(table.rows));
}

void followSavedSheet()
{
    if (sheet.SheetPath.empty())
        return;
    const std::string path = fileBeside(sheet.SheetPath, labEnding);
    if (path == laboratory.path) {
        if (takeNames() || laboratory.unsaved)
            write();
        return;
    }
    if (!hasData()) {
        readLaboratory();
        return;
    }
    const auto there = fingerprintOfFile(path);
    if (there &&
        ports.dialogs->ask("There are laboratory data beside this name already:\r\n" +
                               toCodePageFromUtf8(path) + "\r\nDo you write those of this sheet over them?",
                           dialogTitle, Buttons::yesNo, Icon::question) != Answer::yes) {
        readLaboratory();
        return;
    }
    laboratory.path = path;
    laboratory.known = there;
    laboratory.trouble.clear();
    write();
}

int markerSlot()
{
    if (laboratory.marker.empty())
        return 0;
    for (int slot = 1; slot <= taxonSlots; ++slot)
        if (sheet.TaxonRecord[slot].Name == laboratory.marker)
            return slot;
    return 0;
}

void chooseMarker(const std::string& name)
{
    if (name == laboratory.marker)
        return;
    laboratory.marker = name;
    write();
}

const LabFields& labFields(int sample)
{
    static const LabFields none;
    const LabSample* const known = knownSample(serialOf(sample));
    return known == nullptr ? none : known->row.fields;
}

bool setLabField(int sample, LabColumn column, const std::string& text)
{
    if (!isLabEntry(column, text))
        return false;
    if (labFields(sample)[column] == text)
        return true;
    sampleToFill(sample).row.fields[column] = text;
    write();
    return true;
}

int copyPreparation(int fromSample)
{
    const LabFields from = labFields(fromSample);
    int filled = 0;
    for (int sample = 1; sample <= sheet.SampleCount; ++sample) {
        if (sample == fromSample || labFields(sample) != LabFields())
            continue;
        LabFields& fields = sampleToFill(sample).row.fields;
        std::copy(from.begin(), from.begin() + labDepthTop, fields.begin());
        ++filled;
    }
    if (filled > 0)
        write();
    return filled;
}

void copyLabFields(int fromSample, int toSample)
{
    const LabFields from = labFields(fromSample);
    if (from == LabFields())
        return;
    sampleToFill(toSample).row.fields = from;
    write();
}

Preparation preparationOf(const LabFields& fields)
{
    const auto number = [&](LabColumn column) { return leadingNumber(fields[column]); };
    return {number(labTablets), number(labTabletMean), number(labTabletSd), number(labQuantity),
            number(labQuantitySd)};
}

std::optional<Accumulation> accumulationOf(const LabFields& fields)
{
    for (int column = labDepthTop; column <= labAgeBottom; ++column)
        if (fields[column].empty())
            return {};
    const double thickness = leadingNumber(fields[labDepthBottom]) - leadingNumber(fields[labDepthTop]);
    const double years = leadingNumber(fields[labAgeBottom]) - leadingNumber(fields[labAgeTop]);
    if (!(thickness > 0) || !(years > 0))
        return {};
    return Accumulation{thickness / years, 0};
}
