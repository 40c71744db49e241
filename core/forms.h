#pragma once

#include <string_view>
#include <vector>

/// The windows other than the main one. Each stands on one list from the start of the program on: its room
/// makes a Form beside the form's record. The main window rests while one of them stands above it.

struct Form {
    enum class Stands {
        aboveMain, ///< and takes all that the user does
        beside     ///< keeps more than `visible`, so only `close` takes it down
    };

    /// `visible`: the mark of the form's record. `close`: what its frame and Esc do.
    Form(const char* formName, bool& isVisible, void (*closeForm)(), Stands place = Stands::aboveMain);
    Form(const Form&) = delete;
    Form& operator=(const Form&) = delete;

    const char* name; ///< as in "frmFind"
    bool& visible;
    void (*close)();
    Stands stands;
};

/// All of them, in the order in which the end of the program takes them down.
const std::vector<const Form*>& forms();
/// There must be one of this name.
const Form& formNamed(std::string_view name);

/// False while a form stands above the main window.
bool isMainEnabled();

/// `visible`: of the form's record. A form may stand above another one, and may be opened in Modify template
/// mode. When the last one has gone, the main window shows and takes keys again; in Modify template mode the
/// focus stays in its box.
void openAboveMain(bool& visible);
void closeAboveMain(bool& visible);

/// The program ends: no form stays, and the main window does not come back.
void takeDownForms();
