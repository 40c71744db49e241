#pragma once

/// The one recomputation after any change of a count, a name or a subtotal membership: sums the counts on
/// show into the three totals, sets the rows that hold a count in the table bold, and turns a blanked name
/// into "---".
/// `sample`: the column on show; its table decides the bold state.
void RecountTotals(int sample);
