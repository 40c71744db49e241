#pragma once

#include <string>

/// A text of a sample as it is shown and kept: "---" if there is none.
std::string orDashes(const std::string& text);

/// The saturation curve begins again: it belongs to one uninterrupted counting of one sample.
void forgetCurve();

/// While one lives, a sample is being shown: what is written to the boxes is neither stored nor stamped.
class ShowingSample {
public:
    ShowingSample();
    ~ShowingSample();
    ShowingSample(const ShowingSample&) = delete;
    ShowingSample& operator=(const ShowingSample&) = delete;

private:
    bool before_;
};

/// Puts a column of the sheet on show: counts, totals, name, serial number, note, additional info and dates.
/// Stores nothing and stamps nothing. Arms the question about an older sample.
/// `sample`: 1 to SampleCount; becomes CurrentSample.
void showSample(int sample);
/// The names of all samples, in the order of the sheet, go into the list of samples.
void listSampleNames();
