// See ResultsTable.h.
#include "working/ResultsTable.h"

#include <algorithm>

#include "app/NumberDisplay.h"
#include "app/Units.h"
#include "app/main/ChannelTypes.h"
#include "app/main/Reasons.h"
#include "app/main/frmMain.h"
#include "platform/Services.h"
#include "print/ReportLines.h"
#include "working/Working.h"

namespace {

using Kind = WorkingLine::Kind;

class ResultsTable {
 public:
  explicit ResultsTable(const frmMain& main) : main_(main), left_(main.Notes()) {}

  WorkingLines Lines() {
    lines_.push_back({Kind::Head, {"Quantity", "Symbol", "Value", "Unit", "Note"}});
    Row("Project", "", main_.tbProjName.Text, "", "");
    Row("Channel type", "", ChannelState.ChannelType, "", "");
    for (const Field* const field : ReportInputs()) Add(*field, (main_.*field->Box).Text);
    for (const Field* const field : ReportResults()) {
      Add(*field, ShownNumber(ChannelState.*field->Cell, field->PageQuantity, field->FixedDecimals));
    }
    for (const Note& note : left_) Row("", "", "", "", note.Short);
    if (CurrentChannelType().IsSurveyed()) {
      lines_.push_back({Kind::Heading, {"Points"}});
      AddPoints(lines_);
    }
    return std::move(lines_);
  }

 private:
  void Add(const Field& field, const std::string& value) {
    const std::string unit = UnitLabel(ChannelState.UnitsEorM, field.PageQuantity);
    Row(field.Caption.Current(), SymbolInText(field), value, unit.empty() ? field.Suffix : unit,
        NoteOn(field, value));
  }

  /// Why the value is blank, the verdict on what was solved, and each note where it first belongs.
  std::string NoteOn(const Field& field, const std::string& value) {
    std::string text;
    const auto say = [&text](const std::string& more) { text += (text.empty() ? "" : "; ") + more; };
    if (value.empty()) say(Sentence(WhyBlank(field.Cell).Text));
    if (field.IsResult() && field.Result != ResultWhen::Always) say(Verdict(main_.Found(), main_.Notes()));
    std::erase_if(left_, [&](const Note& note) {
      const bool here = std::ranges::find(note.Concerns, field.Cell) != note.Concerns.end();
      if (here) say(note.Short);
      return here;
    });
    return text;
  }

  void Row(std::string quantity, std::string symbol, std::string value, std::string unit, std::string note) {
    std::ranges::replace(value, '\t', ' ');
    lines_.push_back(
        {Kind::Row,
         {std::move(quantity), std::move(symbol), std::move(value), std::move(unit), std::move(note)}});
  }

  const frmMain& main_;
  std::vector<Note> left_;  // not said yet
  WorkingLines lines_;
};

}  // namespace

void CopyResultsTable(const frmMain& main) {
  const WorkingLines lines = ResultsTable(main).Lines();
  TheServices().clipboard.SetPage(WithRaisedExponents(WorkingText(lines)), WorkingHtml(lines));
}
