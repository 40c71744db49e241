#pragma once

#include "platform/controls.h"
#include "tables/taxon_list.h"

#include <string_view>

/// "Taxa from a list": names that are to go into free rows of the sheet, in Modify template mode.
struct TaxaForm {
    bool visible = false;
    TextBox Text1;   ///< the list, as pasted or opened
    Label Label1;    ///< how many of its names get a row
    TextBox Text2;   ///< which name goes where, what is left alone or out; a line each
    Button Command1; ///< "Take over"; enabled while a name gets a row
    TaxonPlan plan;
};
extern TaxaForm frmTaxa;

/// Opens the form without a list.
void mnuTaxaFromList_Click();
/// What is pasted into the box of a name. Several lines in that of a taxon open the form with them. False in
/// the box of the sample, outside Modify template mode, and for a single line: the box takes it.
bool Text1_Paste(int slot, std::string_view text);

void frmTaxa_Text1_Edited(std::string_view text, int caret);
/// "Take over": the names stand in their rows, with one line in the log.
void frmTaxa_Command1_Click();
/// "Cancel".
void frmTaxa_Command2_Click();
/// "Open a list...".
void frmTaxa_Command3_Click();
