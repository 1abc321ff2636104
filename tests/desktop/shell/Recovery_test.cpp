// Unsaved work after a crash, at log-out and beside other programs: it is kept, offered, and let go only when
// it is safe or given up.
#include <sys/resource.h>

#include <filesystem>
#include <fstream>

#include "app/Declarations.h"
#include "app/project/ProjectFile.h"
#include "desktop/Desk.h"
#include "desktop/Dialogs.h"
#include "desktop/shell/Session.h"
#include "section/frmIrreg.h"
#include "support/TestFolder.h"

namespace fs = std::filesystem;

namespace {

class RecoveryTest : public Desk {
 protected:
  RecoveryTest() { setenv("XDG_DATA_HOME", data_.Path().c_str(), 1); }
  ~RecoveryTest() override { Declarations::DataChanged = false; }

  /// A copy as a program leaves it that is killed while it works on the file `origin`.
  static fs::path LeftCopy(const std::string& projectName, const std::string& origin) {
    ProjectFile::Project project;
    project.ChannelType = "Triangular Channel";
    project.ProjName = projectName;
    return KeptCopy(origin, ProjectFile::Format(project)).Path();
  }

  /// Presses the button with that caption in the box that is about to open.
  static void Press(const char* button, const char* named = "") {
    WhenOpen<QMessageBox>([button, named](QMessageBox& box) {
      EXPECT_TRUE(box.text().contains(QLatin1String(named))) << box.text().toStdString();
      for (QAbstractButton* const each : box.buttons()) {
        if (each->text().remove(u'&') == QLatin1String(button)) return each->click();
      }
      ADD_FAILURE() << box.text().toStdString();
      box.reject();
    });
  }
  void Offer(const char* button, const char* named = "") {
    Press(button, named);
    Recovery(main_).OfferLeftCopies();
  }

  std::string KeptName() const {
    const auto copies = KeptCopy::All();
    return copies.size() == 1 ? ProjectFile::Read(copies[0]).ProjName : std::to_string(copies.size());
  }

  TestFolder data_;
};

TEST_F(RecoveryTest, KeepsWhatIsTypedWithoutAPause) {
  hands_.Focus(main_.tbProjName);
  {
    const Recovery often(main_, 20);
    for (int keys = 0; keys < 500 && KeptCopy::All().empty(); ++keys) {
      Keys("N");
      QTest::qWait(5);
    }
    EXPECT_EQ(KeptName().front(), 'N');
  }
  Recovery recovery(main_);
  for (const char* const typed : {"N", "No", "Nor", "North"}) {
    Keys(&typed[std::string(typed).size() - 1]);
    main_.tbProjName.Text = typed;
    recovery.Look();
    EXPECT_EQ(KeptName(), typed);
  }
  fs::remove(KeptCopy::All()[0]);  // by somebody who tidies up
  recovery.Look();
  EXPECT_EQ(KeptName(), "North");
  services_.fileDialog.Choices = {(data_.Path() / "north.fwd").string()};
  main_.mnuFileSave_Click();
  recovery.Look();
  EXPECT_EQ(KeptName(), "0");
}

TEST_F(RecoveryTest, AnOpenedCopyStaysUntilTheWorkIsSafe) {
  const fs::path canal = data_.Path() / "canal.fwd";
  const fs::path copy = LeftCopy("Canal", canal);
  Press("Open the copy");
  Recovery recovery(main_);
  rlimit usual{};
  getrlimit(RLIMIT_FSIZE, &usual);
  const rlimit full{0, usual.rlim_max};
  setrlimit(RLIMIT_FSIZE, &full);
  recovery.OfferLeftCopies();
  EXPECT_EQ(main_.tbProjName.Text.Get(), "Canal");
  main_.tbProjName.Text = "Canal, lower reach";
  recovery.Look();
  EXPECT_EQ(KeptName(), "Canal") << "what a full disk does not take";
  setrlimit(RLIMIT_FSIZE, &usual);
  recovery.Look();
  EXPECT_EQ(KeptName(), "Canal, lower reach");
  EXPECT_EQ(KeptCopy::All()[0], copy);

  // Its first save offers the file that it came from, the next ones go there unasked.
  services_.fileDialog.Choices = {canal.string()};
  main_.mnuFileSave_Click();
  main_.tbProjName.Text = "Canal";
  main_.mnuFileSave_Click();
  ASSERT_EQ(services_.fileDialog.Requests.size(), 1U);
  EXPECT_EQ(services_.fileDialog.Requests[0].Folder, data_.Path().string() + "/");
  EXPECT_EQ(services_.fileDialog.Requests[0].FileName, "canal.fwd");
  recovery.Look();
  EXPECT_EQ(KeptName(), "0");
}

TEST_F(RecoveryTest, ACopyGoesOnlyWhenTheUserSaysSo) {
  LeftCopy("Canal", "");
  Offer("Ask later", "\"Canal\"");
  EXPECT_EQ(KeptName(), "Canal");
  EXPECT_EQ(main_.tbProjName.Text.Get(), "");
  Offer("Discard it");
  LeftCopy("", "/rivers/18\" pipe.fwd");
  Offer("Discard it", "18\" pipe.fwd");
  EXPECT_EQ(KeptName(), "0");
  EXPECT_EQ(std::distance(fs::directory_iterator(data_.Path() / "Flumewise" / "recovery"), {}), 0);
}

TEST_F(RecoveryTest, OnlyALockThatAProgramHoldsHidesACopy) {
  const fs::path copy = LeftCopy("Canal", "");
  const fs::path lock = copy.string() + ".lock";
  {
    const auto other = KeptCopy::TakeOver(copy);
    Recovery(main_).OfferLeftCopies();  // no box opens
  }
  for (const char* const content : {"", "\xFF\x00garbage", "4711\nflumewise\nsome-host\n"}) {
    std::ofstream(lock, std::ios::trunc) << content;
    Offer("Ask later");
  }
  fs::remove(lock);
  fs::create_directory(lock);
  Offer("Open the copy");
  EXPECT_EQ(main_.tbProjName.Text.Get(), "Canal");
  EXPECT_EQ(main_.FileOfWork(), "");
}

TEST_F(RecoveryTest, AnUnreadableCopyIsSetAsideAndReported) {
  const fs::path copy = KeptCopy("/rivers/points.csv", "0;10\r\n").Path();
  QString told;
  WhenOpen<QMessageBox>([&](QMessageBox& box) {
    told = box.text() + u'\n' + box.informativeText();
    box.accept();
  });
  Recovery(main_).OfferLeftCopies();
  EXPECT_TRUE(told.startsWith(QStringLiteral("A recovery copy cannot be opened: items are missing.\n")))
      << told.toStdString();
  EXPECT_TRUE(told.contains(QStringLiteral("/rivers/points.csv")));
  ASSERT_TRUE(told.contains(QString::fromStdString(copy.string() + ".set-aside")));
  EXPECT_EQ(BytesOf(copy.string() + ".set-aside"), "0;10\r\n");
  Recovery(main_).OfferLeftCopies();  // no box opens
}

TEST_F(RecoveryTest, PointsThatTheEditorRefusesAreKeptAndComputeNothing) {
  TakePoints("0 10 0.03, 8 5, 9 12");
  main_.tbFlow.Text = "3";
  main_.tbSlope.Text = "0.001";
  EXPECT_NE(main_.tbArea.Text.Get(), "");
  Recovery recovery(main_);
  InModal(main_.cmdIrreg, [&](Form& form) {
    auto& editor = dynamic_cast<frmIrreg&>(form);
    editor.MSFlexGrid1.SelectCell(3, 1);
    editor.StartCellEdit();
    editor.tbSel.Text = "6";
    recovery.Look();
    services_.messageBox.Answers = {BoxAnswer::Yes};  // the table may go
  });
  const ProjectFile::Project kept = ProjectFile::Read(KeptCopy::All()[0]);
  ASSERT_EQ(kept.Points.size(), 3U);
  EXPECT_EQ(kept.Points[2][0], EngineValue("6"));
  EXPECT_EQ(ChannelState.IrregPoints[3][1], EngineValue("9"));
  main_.RecoverProject(kept, "");
  EXPECT_EQ(main_.tbArea.Text.Get(), "");
  EXPECT_EQ(main_.lblStatus.Caption.Get(), "Point 3: Station must be greater than the one before");
}

/// The session manager lets the session end.
void EndSession() {
  QTimer::singleShot(0, qApp, [] {
    QEvent quit(QEvent::Quit);
    QApplication::sendEvent(qApp, &quit);
  });
  EXPECT_EQ(QApplication::exec(), 0);
}

TEST_F(RecoveryTest, ASessionEndsAfterOneQuestion) {
  const std::string settings = data_.Path() / "settings.ini";
  SettingsFile::Use(settings);
  auto recovery = std::make_unique<Recovery>(main_);
  Session session(main_, *recovery);
  main_.tbProjName.Text = "Canal";
  recovery->Look();
  EXPECT_FALSE(session.MayEnd()) << "Cancel keeps the session";
  hands_.Click(main_.mnuOptionsIrreg);
  InModal(main_.cmdIrreg, [&](Form& editor) {
    hands_.Focus(dynamic_cast<frmIrreg&>(editor).MSFlexGrid1);
    Keys("7");
    services_.messageBox.Answers = {BoxAnswer::No};
    EXPECT_FALSE(session.MayEnd());
    EXPECT_EQ(services_.messageBox.Boxes.back().Text, "Discard the changed points?");
    services_.messageBox.Answers = {BoxAnswer::Yes, BoxAnswer::No};
    EXPECT_TRUE(session.MayEnd());
    EXPECT_EQ(services_.messageBox.Boxes.back().Text, "Save changes to Untitled?");
    services_.messageBox.Boxes.clear();
    EndSession();
    EXPECT_TRUE(services_.messageBox.Boxes.empty());
  });
  EXPECT_NE(BytesOf(settings), "");
  recovery.reset();
  EXPECT_EQ(KeptName(), "0") << "given up";
  SettingsFile::Use("");
}

TEST_F(RecoveryTest, ASessionThatAsksNothingLeavesACopy) {
  auto recovery = std::make_unique<Recovery>(main_);
  Session session(main_, *recovery);
  main_.tbProjName.Text = "Canal";
  services_.messageBox.Answers = {BoxAnswer::No};
  EXPECT_TRUE(session.MayEnd());
  main_.tbProjName.Text = "Canal, typed since the question";
  EndSession();
  recovery.reset();
  EXPECT_EQ(KeptName(), "Canal, typed since the question");
}

}  // namespace
