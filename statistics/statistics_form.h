#pragma once

#include "platform/controls.h"
#include "platform/drawing.h"
#include "statistics/lab_file.h"
#include "statistics/stat_table.h"

#include <array>
#include <string>
#include <string_view>

/// "Statistics": what the counts are worth. It stands beside the main window, and its figures follow the
/// counting when the hand pauses.
enum StatisticsPage { richnessPage, limitsPage, comparePage, concentrationPage, statisticsPages };

struct StatisticsForm {
    StatisticsForm() { Option1[0].selected = true; }

    bool visible = false;
    int forwardRevision = 0; ///< goes up whenever the window is to come in front
    int SSTab1 = richnessPage;
    std::array<OptionButton, 2> Option1; ///< 0 the sample on show, 1 all samples; not on page "Compare"
    Label Label1;                        ///< which sample and which basis the figures are of
    Label Label2;                        ///< "Compare": what is said of the two samples together
    Label Label3;                        ///< "Concentration": markers to go, and what is missing
    std::array<StatTable, statisticsPages> tables;
    Surface Picture1; ///< "Richness": rarefaction beside the saturation curve, of the sample on show

    TextBox Text1{.text = "150"}; ///< "Richness": a number of individuals of one's own for E(S)
    TextBox Text2;                ///< "Limits": the half-width that "more" counts up to, percent

    std::array<ComboBox, 2> Combo1; ///< "Compare": names of the samples
    Button Command3;                ///< "Count again"
    Button Command4;                ///< "Finish recount"

    ComboBox Combo2;                       ///< "Concentration": the marker, "(none)" for none
    std::array<TextBox, labColumns> Text3; ///< laboratory data of the sample on show
    TextBox Text4{.text = "10"};           ///< the relative error to count for, percent
    int labSerial = 0;                     ///< serial number of the sample whose data these are
    Button Command5;                       ///< "Use for samples without data"

    bool stale = false; ///< the sheet has changed since the figures were computed
};
extern StatisticsForm frmStatistics;

/// Opens the window, or brings it in front.
void mnuStatistics_Click();
void frmStatistics_Unload();
void frmStatistics_SSTab1_Click(int page);
/// The sample on show (0) or all samples (1).
void frmStatistics_Option1_Click(int scope);
void frmStatistics_Picture1_Resize();
/// A click on the head of a column of the page in view.
void sortStatistics(int column);
/// "Save table..." of the page in view.
void frmStatistics_Command1_Click();
/// What "Copy" of the page in view puts on the clipboard: tabs and line ends, in the code page.
std::string copiedStatistics();

void frmStatistics_Text1_Edited(std::string_view text, int caret);
void frmStatistics_Text2_Edited(std::string_view text, int caret);
void frmStatistics_Text4_Edited(std::string_view text, int caret);
/// A sample was picked for the left and for the right side.
void pickFirstSample(std::string_view name);
void pickSecondSample(std::string_view name);
void frmStatistics_Command3_Click(); ///< "Count again"
void frmStatistics_Command4_Click(); ///< "Finish recount"
void pickMarker(std::string_view name);
/// The visit of the boxes of laboratory data ends: what was typed is taken and written. What is no number is
/// refused with a message, and what was there before comes back.
void takeLaboratoryEntries();
void frmStatistics_Text3_LostFocus();
void frmStatistics_Command5_Click();

/// Computes the page in view anew.
void refreshStatistics();
/// After an event of the user: sees to it that the window follows the sheet before long.
void watchStatisticsWindow();
/// The hand has paused.
void StatisticsTimer_Timer();
