#include "diagram/diagram_window.h"

#include "core/editing.h"
#include "core/program_test.h"
#include "core/sample_move.h"
#include "core/sample_sort.h"
#include "core/text_changes.h"
#include "diagram/coniss_window.h"
#include "diagram/diagram_hand.h"
#include "diagram/diagram_layout.h"
#include "diagram/diagram_mouse.h"
#include "diagram/diagram_view.h"
#include "diagram/figures.h"
#include "sheet/basis.h"

#include <cmath>

namespace {

/// A sheet of five samples at depths 10 to 50 with three taxa, and its diagram.
class Diagram : public ProgramTest {
protected:
    DiagramForm& f = frmDiagram;

    Diagram()
    {
        frmDiagram = DiagramForm();
        hooks.ReloadDiagram = reloadDiagram;
        hooks.ReorderDiagram = reorderDiagram;
        hooks.RefreshDiagram = refreshDiagram;
        hooks.RedrawDiagram = redrawDiagram;
        addSamples(5);
        sheet.CurrentSample = 5;
        for (int sample = 1; sample <= 5; ++sample) {
            sheet.Count(sample, 1) = 10 * sample;
            sheet.Count(sample, 2) = 60 - 10 * sample;
            sheet.Count(sample, 3) = 5;
            frmMain.Combo2.items.push_back(sheet.SampleField(sample, 2));
        }
        for (int slot = 1; slot <= 3; ++slot)
            frmMain.Text2[slot].text = decimalText(sheet.Count(5, slot));
        sheet.TaxonRecord[1].Subtotal1 = "1";
        sheet.WarnNotLatest = false;
    }
    void open()
    {
        mnuDiagramStyle_Click(styleAtStart);
        ASSERT_TRUE(sheet.DiagramOpen);
    }
    static void nameByCode()
    {
        for (int sample = 1; sample <= 5; ++sample)
            sheet.SampleField(sample, 2) = std::string("core ") + static_cast<char>('A' + sample - 1);
    }
    float row(int sample) const { return rowOfSample(sample); }
    void dragTo(float from, float to, bool right)
    {
        pictureMouseMove(DiagramPicture::diagram, 50, from);
        pictureMouseDown(DiagramPicture::diagram, 50, from, right);
        pictureMouseMove(DiagramPicture::diagram, 50, to);
        pictureMouseUp();
    }
};

} // namespace

TEST_F(Diagram, opensAtItsSizeWithTheChosenStyleButNotForOneSample)
{
    open();
    EXPECT_EQ(f.style, styleAtStart);
    EXPECT_TRUE(f.mnuAll.checked && !f.mnuSub1.checked) << "as the main window stands";
    EXPECT_TRUE(f.Width == 9735 && f.Height == 7545);
    EXPECT_FLOAT_EQ(f.Picture1.scale.width, 500);
    EXPECT_TRUE(f.Slider1.value == 5 && f.Slider1.max == 5);
    EXPECT_EQ(f.Check1.caption, "50");
    EXPECT_FALSE(f.Picture1.picture.marks.empty() || f.Picture4.picture.texts.empty());

    frmDiagram_Resize(12000, 9000);
    EXPECT_FLOAT_EQ(f.Picture1.scale.width, static_cast<float>(12000 - 2310) / 15 / 0.99F)
        << "shows more columns";
    closeDiagram();
    mnuDiagramStyle_Click(0);
    EXPECT_TRUE(f.Width == 12000 && f.style == 0);
    closeDiagram();
    sheet.SampleCount = 1;
    mnuDiagramStyle_Click(0);
    EXPECT_FALSE(sheet.DiagramOpen);
}

TEST_F(Diagram, refusesToBecomeTooSmall)
{
    open();
    dialogs.expect("Frame too small", "Error");
    frmDiagram_Resize(2000, 1000); // one message for both
    EXPECT_TRUE(f.Width == 5000 && f.Height == 3500);
    EXPECT_GE(f.picture1Place.height, 500);
    frmDiagram_Resize(5000, 3500);
}

TEST_F(Diagram, stepsThroughTheSamplesInARing)
{
    open();
    UpDown1_DownClick();
    EXPECT_EQ(f.Slider1.value, 1);
    UpDown1_UpClick();
    EXPECT_EQ(f.Slider1.value, 5);
    sheet.SampleField(2, 2) = sheet.SampleField(4, 2);
    frmDiagram_Combo2_Click("40");
    EXPECT_EQ(f.DiagramSample, 4) << "of two samples of a name the later";
    sheet.SampleField(3, 2) = "31";
    frmDiagram_Activate();
    EXPECT_EQ(f.Combo2.items[2], "31") << "a sample that was renamed meanwhile";
    frmMain.SSTab1 = 2;
    Slider1_Change(2);
    EXPECT_EQ(frmMain.SSTab1, 0);
    EXPECT_EQ(f.Check1.caption, "20");
    const double expected =
        f.picture1Place.top +
        (row(2) - f.Picture1.scale.top) * (f.picture1Place.height - 60.0) / f.Picture1.scale.height - 390;
    EXPECT_NEAR(f.frame3Place.top, expected, 1);
    EXPECT_TRUE(f.Picture1.layer.marks.empty());
    Check1_Click();
    ASSERT_EQ(f.Picture1.layer.marks.size(), 1);
    EXPECT_EQ(f.Picture1.layer.marks[0].y1, row(2));
}

TEST_F(Diagram, zoomStaysWithinItsBoundsAndTheScrollBarFollows)
{
    open();
    Slider2_Change(0);
    EXPECT_EQ(f.Slider2.value, 1);
    EXPECT_EQ(f.plot.ColumnGap, 50);
    EXPECT_EQ(f.HScroll1.largeChange, 2500);
    const double end = f.plot.ColumnLeft[135] - 2500 + f.plot.LastColumnWidth + 100;
    EXPECT_EQ(f.HScroll1.max, std::lround(end));
    HScroll1_Change(1000000);
    EXPECT_EQ(f.HScroll1.value, f.HScroll1.max);
    frmDiagram_Resize(9750, 7545); // takes no account of the zoom
    EXPECT_EQ(f.HScroll1.max, std::lround(f.plot.ColumnLeft[135] - f.Picture1.scale.width + 100));
}

TEST_F(Diagram, keysCountInItAndDismissTheDendrogram)
{
    open();
    nmuConiss_Click();
    EXPECT_TRUE(f.picture2Visible && f.ConissShown && f.Width == 9735 + dendrogramWidth);
    ASSERT_EQ(f.merges.merges(), 4);
    const int forward = frmMain.forwardRevision;
    const float before = f.plot.Share(5, 1);
    frmDiagram_KeyDown(shift1, 0);
    EXPECT_TRUE(f.picture2Visible) << "a layer key counts nothing";
    frmDiagram_KeyUp(shift1);
    EXPECT_TRUE(sheet.Layer == 0 && !sheet.Shift1Down);
    frmDiagram_KeyDown('Q', 0);
    EXPECT_EQ(frmMain.forwardRevision, forward + 1);
    EXPECT_NE(f.plot.Share(5, 1), before);
    EXPECT_FALSE(f.picture2Visible || f.nmuConiss.checked);
    EXPECT_EQ(f.Width, 9735);

    frmDiagram_KeyDown(undoKey, 0);
    frmDiagram_KeyUp(undoKey);
    EXPECT_EQ(sheet.Count(5, 1), 51) << "nothing is taken back unseen";
    EXPECT_EQ(sheet.MinusState, 0);
}

TEST_F(Diagram, followsTheBasisOfEitherWindow)
{
    open();
    nmuConiss_Click();
    const auto merges = f.merges.MergeSumSquare;
    sheet.AlarmArmed = false;
    frmDiagram_Basis_Click(1);
    EXPECT_TRUE(frmMain.Option1[1].selected && f.mnuSub1.checked && !f.mnuAll.checked && sheet.AlarmArmed);
    EXPECT_EQ(f.plot.Share(1, 2), 5) << "50 of a taxon outside against 10";
    EXPECT_NE(f.merges.MergeSumSquare, merges);
    selectBasis(0);
    EXPECT_TRUE(f.mnuAll.checked && !f.mnuSub1.checked);
    EXPECT_EQ(f.merges.MergeSumSquare, merges);
}

TEST_F(Diagram, theWheelScrollsAndZoomsByNotches)
{
    open();
    f.HScroll1.max = 300;
    f.HScroll1.value = 100;
    turnWheel(-120, false);
    EXPECT_EQ(f.HScroll1.value, 130);
    turnWheel(40, false); // a touchpad
    EXPECT_EQ(f.HScroll1.value, 120);
    turnWheel(12000, false);
    EXPECT_EQ(f.HScroll1.value, 0);
    turnWheel(120, true);
    EXPECT_EQ(f.Slider2.value, 6);
    for (int part = 0; part < 3; ++part)
        turnWheel(-40, true);
    EXPECT_EQ(f.Slider2.value, 5);
    turnWheel(-1200, true);
    EXPECT_EQ(f.Slider2.value, 1);
}

TEST_F(Diagram, keysPickSamplesAndMoveThemWhereTheMouseMay)
{
    open();
    const int samples = sheet.SampleCount;
    pickSample(-samples);
    EXPECT_EQ(f.Slider1.value, 1);
    pickSample(1);
    EXPECT_TRUE(f.Slider1.value == 2 && f.DiagramSample == 2);
    const std::string second = sheet.SampleField(2, 2);
    carryPickedSample(-1);
    EXPECT_EQ(sheet.SampleField(2, 2), second) << "depths have their places";
    closeDiagram();
    nameByCode();
    open();
    f.Slider1.value = 2;
    const std::string moved = sheet.SampleField(2, 2);
    carryPickedSample(-1);
    EXPECT_EQ(sheet.SampleField(1, 2), moved);
    EXPECT_TRUE(f.Slider1.value == 1 && f.Text1.text == "2" && f.Text2.text == "1");
    EXPECT_EQ(sheet.ActionText.back(), "(Move sample) " + moved + ": 2 to 1");
    carryPickedSample(-1);
    EXPECT_EQ(f.Slider1.value, 1);
    EXPECT_EQ(sheet.ActionText.back(), "(Move sample) " + moved + ": 2 to 1") << "at its end it stays";
}

TEST_F(Diagram, saysWhenTheSheetIsNotInDepthOrder)
{
    std::swap(sheet.SampleField(1, 2), sheet.SampleField(2, 2));
    open();
    EXPECT_FALSE(f.notice.empty());
    EXPECT_TRUE(sampleSort.offer.visible);
    mnuSortSamples_Click();
    EXPECT_TRUE(f.notice.empty() && !sampleSort.offer.visible);
    std::swap(sheet.SampleField(1, 2), sheet.SampleField(2, 2));
    closeDiagram();
    nameByCode();
    open();
    EXPECT_TRUE(f.notice.empty());
}

TEST_F(Diagram, lineIsDraggedWithTheLeftButtonAndStaysOnTheSamples)
{
    open();
    pictureMouseMove(DiagramPicture::diagram, 50, row(5) - 20);
    EXPECT_EQ(f.pointer, DiagramPointer::arrow);
    dragTo(row(5), row(2) + 1, false);
    EXPECT_TRUE(f.Slider1.value == 2 && f.DiagramSample == 2 && !f.LineDragging);
    dragTo(row(2), 100000, false);
    EXPECT_EQ(f.Slider1.value, 5);
    dragTo(row(5), -100000, false);
    EXPECT_EQ(f.Slider1.value, 1);
    pictureMouseMove(DiagramPicture::diagram, 50, row(1));
    EXPECT_TRUE(pictureMouseDown(DiagramPicture::diagram, 50, row(1), true)) << "depths cannot be moved";
    pictureMouseUp();
    EXPECT_EQ(sheet.Count(1, 1), 10);
}

TEST_F(Diagram, sampleOfAnUnnumberedSheetMovesWithTheRightButton)
{
    nameByCode();
    open();
    nmuConiss_Click();
    const auto merges = f.merges.MergeSumSquare;
    EXPECT_TRUE(pictureMouseDown(DiagramPicture::diagram, 50, row(2) - 9, true)) << "away from the line";
    pictureMouseUp();
    Slider1_Change(2);
    pictureMouseMove(DiagramPicture::diagram, 50, row(2));
    EXPECT_FALSE(pictureMouseDown(DiagramPicture::diagram, 50, row(2), true));
    EXPECT_EQ(f.Picture1.layer.marks.at(0).pen, RGB(255, 0, 0));
    pictureMouseMove(DiagramPicture::diagram, 50, row(4));
    EXPECT_TRUE(f.Text1.text == "2" && f.Text2.text == "4");
    pictureMouseUp();
    EXPECT_EQ(sheet.SampleField(4, 2), "core B");
    EXPECT_EQ(sheet.Count(4, 1), 20);
    EXPECT_EQ(sheet.Count(2, 1), 30);
    EXPECT_EQ(f.Combo2.items[3], "core B");
    EXPECT_EQ(f.Check1.caption, "core B") << "the panel goes with the sample";
    EXPECT_NE(f.merges.MergeSumSquare, merges);
}

TEST_F(Diagram, guideLinesAndTipFollowTheMouse)
{
    open();
    sheet.TaxonRecord[2].Name = "Pinus";
    HScroll1_Change(20);
    mnuVertical_Click();
    mnuHorizontal_Click();
    const float inSecondColumn = f.plot.ColumnLeft[2] + 3 - 20;
    pictureMouseMove(DiagramPicture::diagram, inSecondColumn, 30);
    EXPECT_EQ(f.toolTip, "Pinus");
    ASSERT_EQ(f.Picture1.layer.marks.size(), 2);
    EXPECT_EQ(f.Picture1.layer.marks[0].x1, inSecondColumn);
    EXPECT_EQ(f.Picture1.layer.marks[1].y1, 30);
    mnuTaxaName_Click();
    pictureMouseMove(DiagramPicture::diagram, inSecondColumn, 30);
    EXPECT_EQ(f.toolTip, "");
}

TEST_F(Diagram, theTipNamesTheColumnThatIsPaintedUnderTheMouse)
{
    for (int slot = 1; slot <= taxonSlots; ++slot)
        sheet.TaxonRecord[slot].Name = "taxon " + decimalText(slot);
    std::swap(sheet.KeyIndexOfRow[2], sheet.KeyIndexOfRow[135]);
    sheet.RowOfKeyIndex[2] = 135;
    sheet.RowOfKeyIndex[135] = 2;
    open();
    for (const int zoom : {1, 2, 5, 8, 10}) {
        Slider2_Change(zoom);
        for (const int scroll : {0, f.HScroll1.max / 2, f.HScroll1.max}) {
            HScroll1_Change(scroll);
            for (int column = 1; column <= taxonSlots; ++column) {
                const float middle = (f.plot.ColumnLeft[column] + f.plot.ColumnLeft[column + 1]) / 2;
                pictureMouseMove(DiagramPicture::diagram,
                                 (middle - static_cast<float>(scroll)) * static_cast<float>(zoom) / 5, 30);
                ASSERT_EQ(f.toolTip, f.plot.ColumnName[column]) << column << " at " << zoom << ", " << scroll;
            }
        }
    }
}

TEST_F(Diagram, depthsFollowTheLastNameThatWasNoNumber)
{
    for (int sample = 1; sample <= 5; ++sample)
        sheet.SampleField(sample, 2) = sample == 5 ? "bottom" : decimalText(sample);
    sheet.CurrentSample = 5;
    setText1(0, "bottom");
    open();
    hooks.SampleRenamed = followSampleNames;
    EXPECT_EQ(f.Check1.caption, "bottom");
    sheet.Modifying = true;
    setText1(0, "11");
    EXPECT_FALSE(sheet.NamesNotNumeric);
    EXPECT_EQ(row(4), 22) << "3 of 10 from 10 to 50";
    EXPECT_EQ(f.Check1.caption + f.Combo2.items[4], "1111");
    Text1_GotFocus(0);
    for (const char* typed : {"1", "11.", "11.2", "11.25"})
        Text1_Edited(0, typed, 1);
    EXPECT_EQ(f.Check1.caption, "11.25") << "to the last letter, once it has begun";
    leaveEditedBox();
    setText1(0, "12");
    EXPECT_EQ(f.Check1.caption, "11.25") << "else depths stay as the window found them";
    setText1(0, "base");
    EXPECT_EQ(row(4), 40);
    EXPECT_EQ(f.Check1.caption, "base");
}

TEST_F(Diagram, matrixIsSavedFromTheLastMergeToTheFirst)
{
    for (int sample = 1; sample <= 5; ++sample)
        for (int slot = 1; slot <= 3; ++slot)
            sheet.Count(sample, slot) = slot == 1   ? (sample <= 2   ? 10
                                                       : sample == 3 ? 5
                                                                     : 0)
                                        : slot == 2 ? 10 - (sample <= 2   ? 10
                                                            : sample == 3 ? 5
                                                                          : 0)
                                                    : 0;
    open();
    nmuConiss_Click();
    dialogs.paths = {std::nullopt, "/full/matrix.csv", "/matrix.csv"};
    mnuSaveConiss_Click();
    files.unwritable = {"/full/matrix.csv"};
    dialogs.expect("The file is being used by another software. Please close the file and try again.",
                   "Error");
    mnuSaveConiss_Click();
    mnuSaveConiss_Click();
    EXPECT_EQ(files.contents["/matrix.csv"], "\"Depth from\",\"Depth to\",\"Sum square\"\r\n"
                                             "22.5,45,1.625\r\n"
                                             "15,30,0.5\r\n"
                                             "40,50,0\r\n"
                                             "10,20,0\r\n");
}

TEST_F(Diagram, picturesLeaveWholeAndInView)
{
    open();
    mnuCopyDiagram_Click();
    ASSERT_EQ(pictures.copied.size(), 1);
    EXPECT_EQ(pictures.copied[0].panels[0].drawing.marks, f.Picture1.picture.marks);
    nmuConiss_Click();
    const Figure whole = wholeFigure();
    ASSERT_EQ(whole.panels.size(), 3);
    EXPECT_EQ(whole.panels[0].drawing.texts.size(), 135) << "all columns, not only those in view";
    EXPECT_GT(whole.width, f.plot.ColumnLeft[135] * 0.99F + f.Picture2.width);

    dialogs.paths = {"/out/figure.PDF", "/out/figure", "/out/figure.svg"};
    mnuSavePicture_Click();
    EXPECT_EQ(files.contents["/out/figure.PDF"], "pdf bytes");
    dialogs.expect("Please end the file name with .svg, .pdf or .png.", "Error");
    mnuSavePicture_Click();
    files.room = 3;
    dialogs.expect("The file is being used by another software. Please close the file and try again.",
                   "Error");
    mnuSavePicture_Click();
}

TEST_F(Diagram, survivesDepthsWithoutAnExtentAndSamplesWithoutABasis)
{
    for (int sample = 1; sample <= 5; ++sample)
        sheet.SampleField(sample, 2) = "10";
    open();
    EXPECT_EQ(row(5), 50);
    frmDiagram_Basis_Click(2); // no taxon is in it
    nmuConiss_Click();
    EXPECT_EQ(f.merges.MergeSumSquare[4], 0);
    EXPECT_EQ(f.merges.MergeFrom[1], 10);
}
