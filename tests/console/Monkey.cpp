// See Monkey.h.
#include "console/Monkey.h"

#include <charconv>
#include <cstdlib>
#include <deque>
#include <fstream>
#include <random>
#include <string_view>
#include <utility>

#include "support/Split.h"

namespace {

const std::vector<std::string> Boxes = Split(
    "tbFlow tbDepth tbSlope tbMann tbBaseWidth tbSSL tbSSR tbDiameter tbProjName tbSel tbMin tbMax "
    "tbIncrement",
    " ");
const std::vector<std::string> Texts = Split(
    "|0|1|.5|400|1e308|1e999|-1|0.013|0.0016|1,234|1,5|"
    "20 ft|1e12|12|1e-300|abc|2|999|0.9|1e-7|\\t3\\t|+7|998",
    "|");
const std::vector<std::string> Presses = Split(
    "mnuFileNew mnuEditCut mnuEditCopy mnuEditPaste mnuEditDelete mnuOptionsRect mnuOptionsTrap "
    "mnuOptionsTriangular mnuOptionsCircular mnuOptionsIrreg mnuSolveForFlow mnuSolveForDepth "
    "mnuOptionsUnitsEnglish mnuOptionsUnitsMetric mnuOptionsDigits cmdMannParams cmdIrreg cmdCopy cmdPaste "
    "cmdIns cmdDel mnuEditUndo mnuEditRedo mnuFileImport mnuSolveSection mnuSolveGraph mnuSolveTable "
    "mnuEditSettings mnuPrint mnuPrintPreview mnuFilePrint mnuFilePrintPreview mnuFileExport mnuFileOpen "
    "mnuFileSave mnuHelpContents mnuHelpAbout cmdOK cmdCancel optSigDigs_5 optEngDigs_1 Toolbar1.New "
    "mnuFileExit",
    " ");
const std::vector<std::string> Others = Split(
    "answer Yes|answer No|answer Cancel|close|locale , .|locale . ,|printer ok|printed|date 2026-7-4|"
    "page 12240 15840|pick cbxVary 1|pick cbxY 3|clipboard 3.5|pick lstMannParam 7|start|messages|"
    "dblclick lstMannParam|nonsense \\q",
    "|");
const std::vector<std::string> Results =
    Split("tbFlow tbDepth tbVelocity tbVelHead tbArea tbWP tbHRad tbTopW tbFroude tbCritD tbCritS", " ");
const std::vector<std::string> OnGrid = Split(
    "dblclick MSFlexGrid1|char MSFlexGrid1 7|char tbSel 5|key tbSel 13|key tbSel 27|key tbSel 34|"
    "key MSFlexGrid1 46|key tbSel 39|key tbSel 13 shift|key tbSel 108 ctrl|key tbSel 34 ctrl|chart "
    "MSChart1|cell MSFlexGrid1 3 2|record points 4 1|focus MSFlexGrid1|"
    "key tbSel 38|get tbSel.Visible|clipboard 0\\t9\\t.03\\r5\\t2\\r9\\t10|record enginepoints 2 3",
    "|");

// What a person does who knows the program; from there the monkey goes on.
const std::vector<std::vector<std::string>> Problems = {
    {"start", "click mnuOptionsTrap", "type tbFlow 400", "type tbSlope 0.0016", "type tbMann 0.025",
     "type tbBaseWidth 20", "type tbSSL 2", "type tbSSR 2", "get tbDepth.Text"},
    {"start", "click mnuOptionsCircular", "click mnuSolveForFlow", "type tbDepth 1.5", "type tbSlope 0.004",
     "type tbMann 0.013", "type tbDiameter 36", "click mnuSolveTable", "type tbMin 0.5",
     "type tbIncrement .05", "click cmdOK", "click mnuEditCopy"},
    {"start", "click mnuOptionsRect", "type tbFlow 120", "type tbSlope 0.002", "type tbMann 0.013",
     "type tbBaseWidth 8", "click mnuSolveGraph", "pick cbxVary 1", "type tbMin 0.0001", "type tbMax 0.01",
     "click cmdOK", "chart MSChart1"},
    {"start", "click mnuOptionsIrreg", "clipboard 0\\t9\\t.03\\r5\\t2\\r9\\t10", "click cmdIrreg",
     "select MSFlexGrid1 1 1 3 3", "click cmdPaste", "click cmdOK", "type tbFlow 30", "type tbSlope 0.01",
     "get tbDepth.Text", "click mnuSolveSection"}};

class Monkey {
 public:
  std::string NextLine() {
    if (known_.empty() && Any(60) == 0) {
      const auto& problem = Of(Problems);
      known_.assign(problem.begin(), problem.end());
    }
    if (known_.empty()) return RandomLine();
    std::string line = known_.front();
    known_.pop_front();
    return line;
  }

 private:
  std::string RandomLine() {
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
  int Any(int below) { return std::uniform_int_distribution<int>(0, below - 1)(random_); }
  template <class Thing>
  const Thing& Of(const std::vector<Thing>& list) {
    return list[static_cast<std::size_t>(Any(static_cast<int>(list.size())))];
  }
  std::string SelectedBlock() {
    return "select MSFlexGrid1 1 1 " + std::to_string(1 + Any(100)) + " " + std::to_string(1 + Any(3));
  }
  std::mt19937 random_{20261121};
  std::deque<std::string> known_;
};

#ifdef __SANITIZE_ADDRESS__
constexpr std::size_t Quarantine = std::size_t{256} << 20U;  // freed memory that the sanitizer holds back
#else
constexpr std::size_t Quarantine = 0;
#endif
constexpr std::size_t MostGrowth = (std::size_t{32} << 20U) + Quarantine;  // bytes

/// Bytes of memory that the process holds; 0 where the system does not say.
std::size_t ResidentMemory() {
  constexpr std::size_t PageSize = 4096;
  std::size_t total = 0, resident = 0;
  std::ifstream("/proc/self/statm") >> total >> resident;
  return resident * PageSize;
}

}  // namespace

std::vector<std::string> LetMonkeyType(Console::MakeStage stage, int lines) {
  std::vector<std::string> wrong;
  Monkey monkey;
  int asked = 0, answered = 0, shown = 0;
  std::size_t early = 0;
  std::string line;
  const auto read = [&]() -> std::optional<std::string> {
    if (asked == lines / 5) early = ResidentMemory();
    if (asked++ == lines) return std::nullopt;
    line = asked == 1 ? "start" : monkey.NextLine();
    return line;
  };
  const auto write = [&](const std::string& reply) {
    ++answered;
    if (!line.starts_with("get")) return;
    if (reply.find("nan") != std::string::npos || reply.find("inf") != std::string::npos)
      wrong.push_back(line + ": " + reply);
    if (reply.find_first_of("123456789") != std::string::npos) ++shown;
  };
  Console(std::move(stage), read, write).Run();
  if (answered != lines)
    wrong.push_back(std::to_string(answered) + " of " + std::to_string(lines) + " lines were answered");
  if (shown <= lines / 100) wrong.push_back("only " + std::to_string(shown) + " numbers were shown");
  const std::size_t late = ResidentMemory();
  if (late > early + MostGrowth)
    wrong.push_back("memory grew from " + std::to_string(early) + " to " + std::to_string(late));
  return wrong;
}

int MonkeyLines(int usual) {
  const char* const wanted = std::getenv("FLUMEWISE_MONKEY_LINES");
  if (wanted == nullptr) return usual;
  const std::string_view text = wanted;
  std::from_chars(text.data(), text.data() + text.size(), usual);
  return usual;
}
