#pragma once

/// Puts a column of the sheet on show: counts, totals, name, serial number, note, additional info and dates.
/// Stores nothing and stamps nothing.
/// `sample`: 1 to SampleCount; becomes CurrentSample.
void showSample(int sample);
