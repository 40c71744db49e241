#pragma once

#include "core/sheet_size.h"
#include "platform/controls.h"

#include <array>
#include <string>

/// The boxes that describe a new sample; frmSiteName (the first one) and frmNext share them.
struct SampleForm {
    bool visible = false;
    Label Label1;                             ///< what stands beside the name
    TextBox Text1;                            ///< name
    TextBox Text2;                            ///< note
    std::array<Label, infoItems + 1> Label3;  ///< captions of additional info 1 to 6
    std::array<TextBox, infoItems + 1> Text3; ///< additional info; "---" if there is none

    /// Empty boxes under the captions of the sheet.
    void begin(std::string label);
    /// On entry to a box of additional info "---" goes; on leaving an empty one it comes back.
    void enterInfo(int item);
    void leaveInfo(int item);
};
