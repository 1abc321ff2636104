// What the desktop's keys and the files do to the point editor.
#include "section/frmIrreg.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include "app/Declarations.h"
#include "engine/ChannelState.h"
#include "files/WholeFile.h"
#include "section/frmImport.h"
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
  void Paste(GridBlock block, const std::string& text) {
    Select(block);
    Copied(text);
    editor_.cmdPaste_Click();
  }

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
  Copied("");
  editor_.PasteWidened();
  EXPECT_EQ(grid_.Clip(), "1\r3");
}

TEST_P(PointEditor, WhatDoesNotFitOrHasAHeadGoesThroughTheImportDialog) {
  std::string rows;
  for (int i = 0; i < 100; ++i) rows += std::to_string(i) + "\t5\r\n";
  struct Case {
    int Row, Col;
    std::string Copied;
    bool Dialog;
  };
  const std::string head = "Elevation\tStation\tn\r\n10\t0\t1\r\n8\t5\t\r\n";
  const Case cases[] = {{1, 1, rows, false}, {100, 3, "1\r\n", false}, {1, 1, rows + "100\t5", true},
                        {2, 1, rows, true},  {100, 3, "1\t2", true},   {1, 1, head, true}};
  for (const Case& each : cases) {
    editor_.cmdIns_Click();  // so that there is something to change
    Select({each.Row, each.Col, each.Row, each.Col});
    const std::string before = grid_.Text(each.Row, each.Col);
    Copied(each.Copied);
    bool opened = false;
    if (each.Dialog) windows_.Then<frmImport>([&](frmImport&) { opened = true; });
    editor_.PasteWidened();
    EXPECT_EQ(opened, each.Dialog) << each.Copied;
    EXPECT_EQ(grid_.Text(each.Row, each.Col) == before, each.Dialog) << each.Copied;
  }
  windows_.Then<frmImport>([](frmImport& form) { form.cmdOK.Click(); });
  editor_.PasteWidened();
  EXPECT_EQ(grid_.Text(1, 2), "10") << "the head names the columns";
  EXPECT_EQ(grid_.Text(100, 1), "") << "they take the place of all points";
  EXPECT_TRUE(fakes_.messageBox.Boxes.empty());
  for (const std::size_t length : {std::size_t{100'001}, std::size_t{65} << 20U}) {
    Paste({1, 1, 1, 1}, std::string(length, length > 100'001 ? '\t' : '7'));
    ASSERT_EQ(fakes_.messageBox.Boxes.size(), 1U);
    EXPECT_EQ(fakes_.messageBox.Boxes[0].Text, "The text on the clipboard is too long for the table.");
    fakes_.messageBox.Boxes.clear();
  }
  editor_.StartCellEdit();
  editor_.tbSel.Paste(std::string(100'001, '7'));
  EXPECT_EQ(fakes_.messageBox.Boxes.at(0).Text, "The text on the clipboard is too long for a box.");
}

TEST_P(PointEditor, ASignThatLooksLikeThousandsIsAskedAbout) {
  const auto pasted = [this](const std::string& copied, std::optional<BoxAnswer> answer) {
    Paste({1, 1, 2, 3}, "x\tx\tx\rx\tx\tx");
    if (answer) fakes_.messageBox.Answers = {*answer};
    Copied(copied);
    editor_.cmdPaste_Click();
    EXPECT_EQ(fakes_.messageBox.Boxes.size(), answer ? 1U : 0U) << copied;
    EXPECT_TRUE(fakes_.messageBox.Answers.empty());
    return grid_.Clip();
  };
  const std::string doubtful = Spelled("0\t12,500\t0,030\r1,000\tft");
  if (GetParam().GroupSeparator == "\u202F") {  // no sign of any decimals
    EXPECT_EQ(pasted(doubtful, std::nullopt), doubtful + "\tx");
    return;
  }
  EXPECT_EQ(pasted(doubtful, BoxAnswer::No), doubtful + "\tx");
  EXPECT_EQ(fakes_.messageBox.Boxes[0].Text, '"' + Spelled("12,500") + "\" reads as 12500 here. Is \"" +
                                                 GetParam().GroupSeparator +
                                                 "\" the decimal sign of these points?");
  fakes_.messageBox.Boxes.clear();
  EXPECT_EQ(pasted(doubtful, BoxAnswer::Cancel), "x\tx\tx\rx\tx\tx");
  fakes_.messageBox.Boxes.clear();
  EXPECT_EQ(pasted(doubtful, BoxAnswer::Yes), Spelled("0\t12.500\t0.030\r1.000\tft\tx"));
  fakes_.messageBox.Boxes.clear();
  for (const char* const clear :
       {"0\t12,500\t0.03\r5\t8.25", "1,234,500\t7", "0\t1,2500\r5\t12,50", "0\t9\t1,000"})
    pasted(Spelled(clear), std::nullopt);
}

TEST_P(PointEditor, PointsInWorkAreToldAsTheyStand) {
  EXPECT_FALSE(editor_.ChangedPoints());
  Paste({1, 1, 3, 3}, "0\t5\r\t\t\r\t\t0.1");
  Select({3, 2, 3, 2});
  editor_.MSFlexGrid1_KeyPress('4');  // not committed yet
  const frmIrreg::Points points = {{"0", "5", ""}, {"", "", ""}, {"", "4", "0.1"}};
  EXPECT_EQ(editor_.ChangedPoints(), points);
  EXPECT_TRUE(editor_.tbSel.Visible);
  editor_.tbSel_KeyDown(Keys::Escape);
  editor_.mnuEditUndo_Click();
  EXPECT_FALSE(editor_.ChangedPoints()) << "undone is not changed";
}

TEST_P(PointEditor, OKAsksWhetherPoint101MayGo) {
  for (int row = 1; row <= 101; ++row) {
    auto& point = ChannelState.IrregPoints[static_cast<std::size_t>(row)];
    point[1] = std::to_string(row);
    point[2] = "5";
    point[3] = "1";
  }
  ChannelState.IrregPointCount = 101;
  frmIrreg editor;
  editor.Load();
  editor.MSFlexGrid1_KeyPress('0');
  editor.CommitEdit();
  EXPECT_EQ(editor.ChangedPoints()->size(), 101U);
  fakes_.messageBox.Answers = {BoxAnswer::No};
  editor.cmdOK_Click();
  EXPECT_EQ(ChannelState.IrregPointCount, 101);
  EXPECT_TRUE(editor.IsLoaded());
  fakes_.messageBox.Answers = {BoxAnswer::Yes};
  editor.cmdOK_Click();
  EXPECT_EQ(ChannelState.IrregPointCount, 100);
  EXPECT_FALSE(editor.IsLoaded());
  EXPECT_EQ(fakes_.messageBox.Boxes.size(), 2U);
}

TEST_P(PointEditor, ABlockThatIsCutLeavesTheDrawingToo) {
  Paste({1, 1, 2, 2}, "1\t2\r3\t4");
  editor_.CutBlock();
  EXPECT_EQ(fakes_.clipboard.Text(), "1\t2\r3\t4");
  EXPECT_TRUE(editor_.MSChart1.Rows().empty());
  editor_.mnuEditUndo_Click();
  EXPECT_EQ(editor_.MSChart1.Rows().size(), 2U);
}

TEST_P(PointEditor, PointsGoOutAndComeIn) {
  Paste({1, 1, 2, 3}, Spelled("0\t10.25\t0.03\r1,005.5\t8"));
  fakes_.fileDialog.Choices = {file_};
  editor_.mnuFileExport_Click();
  EXPECT_EQ(fakes_.fileDialog.Requests[0].FileName, "Untitled.csv");
  EXPECT_EQ(BytesOf(file_), DecimalComma() ? "# Flumewise: Untitled, 2026-03-09, lengths in ft\r\nStation "
                                             "(ft);Elevation (ft);n\r\n0;10,25;0,03\r\n1005,5;8;\r\n"
                                           : "# Flumewise: Untitled, 2026-03-09, lengths in ft\r\nStation "
                                             "(ft),Elevation (ft),n\r\n0,10.25,0.03\r\n1005.5,8,\r\n");
  Paste({3, 1, 3, 3}, "7\t7\t7");
  fakes_.fileDialog.Choices = {file_};
  windows_.Then<frmImport>([](frmImport& form) { form.cmdOK.Click(); });
  editor_.mnuFileImport_Click();
  EXPECT_EQ(grid_.Text(2, 1), Spelled("1005.5"));
  EXPECT_EQ(grid_.Text(3, 3), "") << "the points that were there are gone";
  editor_.mnuEditUndo_Click();
  EXPECT_EQ(grid_.Text(3, 3), "7");
  EXPECT_TRUE(fakes_.messageBox.Boxes.empty());
}

TEST_P(PointEditor, WhatCannotBeReadOrWrittenChangesNothing) {
  const auto refusal = [this](const std::string& bytes) {
    WholeFile::Write(file_, bytes);
    fakes_.fileDialog.Choices = {file_};
    editor_.mnuFileImport_Click();
    EXPECT_EQ(grid_.Text(1, 1), "");
    const auto boxes = std::exchange(fakes_.messageBox.Boxes, {});
    return boxes.size() == 1 ? boxes[0].Text : "no message";
  };
  windows_.Then<frmImport>([](frmImport& form) {
    EXPECT_EQ(form.lblReason.Caption.Get(), "Line 2, column 2: \"x\" is not a number.");
    EXPECT_FALSE(form.cmdOK.Enabled);
  });
  EXPECT_EQ(refusal("0;1\n2;x\n"), "no message") << "another column may be chosen there";
  EXPECT_EQ(refusal("0;\"1\n"), "Line 1, column 2: A quotation mark is not closed.");
  std::filesystem::resize_file(file_, (std::size_t{64} << 20U) + 1);
  fakes_.fileDialog.Choices = {file_, "/nowhere/points.csv", std::nullopt};
  for (int i = 0; i < 3; ++i) editor_.mnuFileImport_Click();
  ASSERT_EQ(fakes_.messageBox.Boxes.size(), 2U);
  EXPECT_EQ(fakes_.messageBox.Boxes[0].Text, "The file is larger than 64 MiB.");
  EXPECT_EQ(fakes_.messageBox.Boxes[1].Text, "The file cannot be read.");
  fakes_.messageBox.Boxes.clear();
  std::string many = "Station,Elevation,n\n";
  for (int i = 0; i < 50000; ++i) many += std::to_string(i) + ",5,\n";
  fakes_.progress.CancelAt = 0;
  EXPECT_EQ(refusal(many), "no message") << "cancelled while reading";
  editor_.mnuFileExport_Click();
  ASSERT_EQ(fakes_.messageBox.Boxes.size(), 1U);
  EXPECT_EQ(fakes_.messageBox.Boxes[0].Text, "Must have at least two rows of data.");
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
  Paste({1, 1, 100, 3}, text);
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
