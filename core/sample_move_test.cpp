#include "core/sample_move.h"

#include "core/program_test.h"
#include "core/snapshot.h"

using SampleMove = ProgramTest;

TEST_F(SampleMove, andAResetAfterItLeaveEachSampleItsOwn)
{
    addSamples(3);
    for (int sample = 1; sample <= 3; ++sample) {
        sheet.Count(sample, 7) = sample;
        sheet.AdditionalInfo(sample, 2) = "info " + decimalText(sample);
        sheet.SampleStamp(sample, 1) = "stamp " + decimalText(sample);
    }
    sheet.UndoStack[0] = {1, 7};
    TakeSnapshot();
    sheet.Count(1, 7) = 90;
    sheet.AdditionalInfo(1, 2) = "typed";
    sheet.AdditionalInfo(0, 2) = frmMain.Label10[2].caption = "Analyst:";
    sheet.MoveFrom = 1;
    sheet.MoveTo = 3;
    MoveSample();
    EXPECT_TRUE(sheet.CurrentSample == 3 && sheet.UndoStack[0].sample == 3);
    EXPECT_EQ(sheet.AdditionalInfo(3, 2), "typed");
    RestoreSnapshot();
    for (const auto& [column, sample] : {std::pair(1, 2), {2, 3}, {3, 1}}) {
        const std::string own = decimalText(sample);
        EXPECT_EQ(sheet.Count(column, 7), sample);
        EXPECT_EQ(sheet.AdditionalInfo(column, 2), "info " + own);
        EXPECT_EQ(sheet.SampleStamp(column, 1), "stamp " + own);
        EXPECT_EQ(sheet.SampleField(column, 1), own);
        EXPECT_EQ(sheet.SampleField(column, 2), own + "0");
    }
    EXPECT_EQ(sheet.SampleNote(1, 0), "note 2");
    EXPECT_EQ(frmMain.Text5[2].text, "info 1") << "of the sample on show";
    EXPECT_EQ(frmMain.Label10[2].caption, "Additional info-2:") << "a caption that was renamed meanwhile";
    EXPECT_EQ(sheet.AdditionalInfo(0, 2), "Additional info-2:");
}
