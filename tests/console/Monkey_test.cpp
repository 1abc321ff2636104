// A person who presses and types at random: the program must answer each line, and never crash or show
// nonsense.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

#include "console/ConsoleStage.h"

namespace {

using testing::HasSubstr;
using testing::Not;

const std::vector<std::string> Boxes = {"tbFlow", "tbDepth", "tbSlope",    "tbMann",     "tbBaseWidth",
                                        "tbSSL",  "tbSSR",   "tbDiameter", "tbProjName", "tbSel"};
const std::vector<std::string> Texts = {
    "",      "0",    "1",  ".5",     "400", "1e308", "1e999", "-1",  "0.013", "0.0016",  "1,234", "1,5",
    "20 ft", "1e12", "12", "1e-300", "abc", "2",     "999",   "0.9", "1e-7",  "\\t3\\t", "+7",    "998"};
const std::vector<std::string> Presses = {"mnuFileNew",
                                          "mnuEditCut",
                                          "mnuEditCopy",
                                          "mnuEditPaste",
                                          "mnuEditDelete",
                                          "mnuOptionsRect",
                                          "mnuOptionsTrap",
                                          "mnuOptionsTriangular",
                                          "mnuOptionsCircular",
                                          "mnuOptionsIrreg",
                                          "mnuSolveForFlow",
                                          "mnuSolveForDepth",
                                          "mnuOptionsUnitsEnglish",
                                          "mnuOptionsUnitsMetric",
                                          "mnuOptionsDigits",
                                          "cmdMannParams",
                                          "cmdIrreg",
                                          "cmdCopy",
                                          "cmdPaste",
                                          "cmdIns",
                                          "cmdDel",
                                          "mnuEditUndo",
                                          "mnuEditRedo",
                                          "mnuFileImport",
                                          "mnuSolveSection",
                                          "cmdOK",
                                          "cmdCancel",
                                          "optSigDigs_5",
                                          "optEngDigs_1",
                                          "Toolbar1.New",
                                          "mnuFileExit"};
const std::vector<std::string> Others = {
    "answer Yes", "answer No",  "answer Cancel",         "close",
    "locale , .", "locale . ,", "clipboard 3.5",         "pick lstMannParam 7",
    "start",      "messages",   "dblclick lstMannParam", "nonsense \\q"};
const std::vector<std::string> Results = {"tbFlow", "tbDepth", "tbVelocity", "tbVelHead", "tbArea", "tbWP",
                                          "tbHRad", "tbTopW",  "tbFroude",   "tbCritD",   "tbCritS"};

const std::vector<std::string> OnGrid = {
    "dblclick MSFlexGrid1",   "char MSFlexGrid1 7", "char tbSel 5",
    "key tbSel 13",           "key tbSel 27",       "key tbSel 34",
    "key MSFlexGrid1 46",     "key tbSel 39",       "chart MSChart1",
    "cell MSFlexGrid1 3 2",   "record points 4 1",  "focus MSFlexGrid1",
    "key tbSel 38",           "get tbSel.Visible",  "clipboard 0\\t9\\t.03\\r5\\t2\\r9\\t10",
    "record enginepoints 2 3"};

class Monkey {
 public:
  std::string NextLine() {
    switch (Any(10)) {
      case 0:
        return "mark " + Of(Boxes) + " " + std::to_string(Any(5)) + " " + std::to_string(Any(5));
      case 9:
        return Any(2) == 0 ? SelectedBlock() : Of(OnGrid);
      case 1:
        return Any(10) == 0 ? Of(Others) : "focus " + Of(Boxes);
      case 2:
      case 3:
        return Any(200) == 0 ? "start" : "click " + Of(Presses);
      case 4:
      case 5:
        return "get " + Of(Results) + ".Text";
      default:
        return "type " + Of(Boxes) + " " + Of(Texts);
    }
  }

 private:
  int Any(int below) { return std::uniform_int_distribution<int>(0, below - 1)(random_); }
  const std::string& Of(const std::vector<std::string>& list) {
    return list[static_cast<std::size_t>(Any(static_cast<int>(list.size())))];
  }
  std::string SelectedBlock() {
    return "select MSFlexGrid1 1 1 " + std::to_string(1 + Any(100)) + " " + std::to_string(1 + Any(3));
  }
  std::mt19937 random_{20261121};
};

TEST(Monkey, TwentyThousandLinesAreAllAnswered) {
  constexpr int Lines = 20000;
  Monkey monkey;
  int asked = 0;
  int answered = 0;
  int shown = 0;
  std::string line;
  const auto read = [&]() -> std::optional<std::string> {
    if (asked++ == Lines) return std::nullopt;
    line = asked == 1 ? "start" : monkey.NextLine();
    return line;
  };
  const auto write = [&](const std::string& reply) {
    ++answered;
    if (!line.starts_with("get")) return;
    EXPECT_THAT(reply, Not(HasSubstr("nan"))) << line;
    EXPECT_THAT(reply, Not(HasSubstr("inf"))) << line;
    if (reply.find_first_of("123456789") != std::string::npos) ++shown;
  };
  Console(ControllerStage, read, write).Run();
  EXPECT_EQ(answered, Lines);
  EXPECT_GT(shown, 100) << "the monkey never solved a channel";
}

}  // namespace
