#pragma once

#include "core/fingerprint.h"
#include "statistics/concentration.h"
#include "statistics/lab_file.h"

#include <optional>
#include <string>
#include <vector>

/// The laboratory data of the open sheet: which taxon is the marker, and what was put together for each
/// sample. The data sheet has no room for them; they lie in NAME.lab.csv beside it, which is written whole
/// whenever they change. A sheet without a file has none.

/// What is known of one sample.
struct LabSample {
    int serial = 0; ///< serial number of the sample; 0: the sheet has none of that name
    LabRow row;
};

struct Laboratory {
    std::string path; ///< of the file, UTF-8; empty: the sheet has none
    std::string marker;
    std::vector<LabSample> samples; ///< those with data, in the order of the file
    /// Why nothing can be changed: content that cannot be read, or another program was at the file. The file
    /// stays as it is.
    std::string trouble;
    std::optional<Fingerprint> known; ///< what the file held when it was last read or written; none: no file
    bool unsaved = false;             ///< the last change could not be written
};
extern Laboratory laboratory;

/// A sheet was read from its file, or another one began.
void readLaboratory();
/// The sheet was saved, perhaps under another name or with other names of samples.
void followSavedSheet();

/// Slot of the marker; 0: none is named, or the sheet has no taxon of that name.
int markerSlot();
void chooseMarker(const std::string& name);

/// Fields of a sample of the sheet, 1 to SampleCount; all empty if nothing is known of it.
const LabFields& labFields(int sample);
/// Takes an entry and writes the file. An entry that the column cannot hold is refused: false.
bool setLabField(int sample, LabColumn column, const std::string& text);
/// Gives every sample of which nothing is known the tablets and the quantity of one. Returns how many.
int copyPreparation(int fromSample);

/// The new count of a sample was prepared as the first one: gives it its fields. Nothing if there are none.
void copyLabFields(int fromSample, int toSample);

/// As numbers; what is empty is 0.
Preparation preparationOf(const LabFields& fields);
/// Depth a year, from the depths and ages; nothing unless all four are there and the older lies below.
std::optional<Accumulation> accumulationOf(const LabFields& fields);
