// What the desktop's keys and the files do to the point editor.
#include "section/frmIrreg.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "app/Declarations.h"
#include "engine/ChannelState.h"
#include "files/WholeFile.h"
#include "support/FakeServices.h"
#include "support/LocaleTest.h"
#include "support/ScriptedHost.h"
#include "support/TestFolder.h"

namespace {

class PointEditor : public LocaleTest {
 protected:
  PointEditor() {
    InstallServices(fakes_.With(windows_));
    Declarations::Reset();
    editor_.Load();
  }
  ~PointEditor() override { Declarations::Reset(); }

  void Select(GridBlock block) { grid_.Selection = block; }
  void Copied(const std::string& text) { fakes_.clipboard.SetText(text); }

  TestFolder folder_;
  const std::string file_ = (folder_.Path() / "points.csv").string();
  FakeServices fakes_;
  ScriptedHost windows_;
  frmIrreg editor_;
  FlexGrid& grid_ = editor_.MSFlexGrid1;
};

TEST_P(PointEditor, OneCellWidensToWhatIsPasted) {
  Select({2, 1, 2, 1});
  Copied("1\t2\r\n3\t4\r\n");
  editor_.PasteWidened();
  EXPECT_EQ(grid_.Selection.Get(), (GridBlock{2, 1, 3, 2}));
  EXPECT_EQ(grid_.Clip(), "1\t2\r3\t4");
  Select({2, 2, 3, 2});
  editor_.PasteWidened();
  EXPECT_EQ(grid_.Clip(), "1\r3") << "a block that was selected stays as it is";
  Select({100, 3, 100, 3});
  editor_.PasteWidened();
  EXPECT_EQ(grid_.Selection.Get(), (GridBlock{100, 3, 100, 3})) << "the table ends here";
  Copied("");
  editor_.PasteWidened();
  EXPECT_EQ(grid_.Text(100, 3), "1");
}

TEST_P(PointEditor, ABlockThatIsCutLeavesTheDrawingToo) {
  Select({1, 1, 2, 2});
  Copied("1\t2\r3\t4");
  editor_.cmdPaste_Click();
  editor_.CutBlock();
  EXPECT_EQ(fakes_.clipboard.Text(), "1\t2\r3\t4");
  EXPECT_TRUE(editor_.MSChart1.Rows().empty());
  editor_.mnuEditUndo_Click();
  EXPECT_EQ(editor_.MSChart1.Rows().size(), 2U);
}

TEST_P(PointEditor, PointsGoOutAndComeIn) {
  Select({1, 1, 2, 3});
  Copied(Spelled("0\t10.25\t0.03\r1,005.5\t8"));
  editor_.cmdPaste_Click();
  fakes_.fileDialog.Choices = {file_};
  editor_.mnuFileExport_Click();
  EXPECT_EQ(fakes_.fileDialog.Requests[0].FileName, "Untitled.csv");
  EXPECT_EQ(BytesOf(file_), DecimalComma() ? "Station;Elevation;n\r\n0;10,25;0,03\r\n1005,5;8;\r\n"
                                           : "Station,Elevation,n\r\n0,10.25,0.03\r\n1005.5,8,\r\n");
  Select({3, 1, 3, 3});
  Copied("7\t7\t7");
  editor_.cmdPaste_Click();
  fakes_.fileDialog.Choices = {file_};
  editor_.mnuFileImport_Click();
  EXPECT_EQ(grid_.Text(2, 1), Spelled("1005.5"));
  EXPECT_EQ(grid_.Text(3, 3), "") << "the points that were there are gone";
  editor_.mnuEditUndo_Click();
  EXPECT_EQ(grid_.Text(3, 3), "7");
  EXPECT_TRUE(fakes_.messageBox.Boxes.empty());
}

TEST_P(PointEditor, WhatCannotBeReadOrWrittenChangesNothing) {
  WholeFile::Write(file_, "0;1\n2;x\n");
  fakes_.fileDialog.Choices = {file_, "/nowhere/points.csv", std::nullopt};
  for (int i = 0; i < 3; ++i) editor_.mnuFileImport_Click();
  ASSERT_EQ(fakes_.messageBox.Boxes.size(), 2U);
  EXPECT_EQ(fakes_.messageBox.Boxes[0].Text, "Line 2: \"x\" is not a number.");
  EXPECT_EQ(fakes_.messageBox.Boxes[1].Text, "The file cannot be read.");
  EXPECT_EQ(grid_.Text(1, 1), "");
  editor_.mnuFileExport_Click();
  EXPECT_EQ(fakes_.messageBox.Boxes[2].Text, "Must have at least two rows of data.");
  EXPECT_EQ(fakes_.fileDialog.Requests.size(), 3U) << "no file is asked for";
}

TEST_P(PointEditor, AnEditUnderWayIsKeptByTheMenus) {
  editor_.StartCellEdit();
  editor_.tbSel.Text = "12";
  editor_.mnuEditUndo_Click();
  EXPECT_EQ(grid_.Text(1, 1), "");
  EXPECT_FALSE(editor_.tbSel.Visible);
  editor_.mnuEditRedo_Click();
  EXPECT_EQ(grid_.Text(1, 1), "12");
}

TEST_P(PointEditor, AHundredPointsAreJudgedAndStored) {
  std::string text;
  for (int i = 1; i <= 100; ++i) text += std::to_string(i == 100 ? 99 : i) + "\t5\t1\r";
  Select({1, 1, 100, 3});
  Copied(text);
  editor_.cmdPaste_Click();
  editor_.cmdOK_Click();
  EXPECT_EQ(grid_.Selection.Get(), (GridBlock{100, 1, 100, 1}));
  Copied("100");
  editor_.cmdPaste_Click();
  editor_.cmdOK_Click();
  EXPECT_EQ(ChannelState.IrregPointCount, 100);
  EXPECT_EQ(ChannelState.IrregPoints[100][1].Text(), "100");
  EXPECT_EQ(ChannelState.IrregPoints[101][1].Text(), "");
  EXPECT_FALSE(editor_.IsLoaded());
}

INSTANTIATE_LOCALES(PointEditor);

}  // namespace
