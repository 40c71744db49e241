#pragma once

/// Takes the sample of column MoveFrom out of the sheet's order and puts it at MoveTo; those between move up.
/// All that belongs to a sample travels: names, counts, texts and dates, and also what a reset goes back to
/// and what can be taken back, so that neither ever touches another sample's counts. CurrentSample follows
/// its sample. A diagram that is open follows.
void MoveSample();
/// Of that, only what belongs to the samples and what names them by their columns, 1 to SampleCount.
void carrySample(int from, int to);
