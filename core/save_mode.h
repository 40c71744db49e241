#pragma once

/// What is saved, and under which name.
enum class SaveMode {
    plain,      ///< the sheet, to its own file; a dialog names one that has none
    untouched,  ///< the same of a sheet without a count or an edit: no time of modification is stamped
    saveAs,     ///< the sheet, to a file that a dialog names
    copy,       ///< a copy beside the sheet, which keeps its name
    percentAll, ///< a table of percentages of the all total
    percentSubtotal1,
    percentSubtotal2
};

/// How "Save" saves the sheet as it is.
SaveMode plainOrUntouched();
