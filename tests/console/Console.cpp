// See Console.h.
#include "console/Console.h"

#include <algorithm>
#include <map>

#include "app/Declarations.h"
#include "app/settings/SettingsFile.h"
#include "console/Inspect.h"
#include "console/Words.h"

namespace {

std::string Known(const std::optional<std::string>& value, const std::string& name) {
  if (!value) throw Refusal("unknown: " + name);
  return Escaped(*value);
}

void CancelForm(Form& form) {
  auto* const cancel = dynamic_cast<Button*>(form.Find("cmdCancel"));
  if (cancel != nullptr && cancel->Click) cancel->Click();
  form.Unload();
}

/// A command takes one word, the rest of the line as its last argument, between so many words.
template <class Reply>
struct Command {
  std::string_view Name;
  std::size_t LeastArguments;
  std::size_t MostArguments;
  Reply (*Perform)(Console&, const Words&);

  Words Arguments(std::optional<std::string> rest) const {
    Words words;
    while (rest) {
      const std::size_t end = words.size() + 1 < MostArguments ? rest->find(' ') : std::string::npos;
      words.push_back(Unescaped(rest->substr(0, end)));
      if (end == std::string::npos) break;
      rest = rest->substr(end + 1);
    }
    if (words.size() < LeastArguments || (MostArguments == 0 && !words.empty()))
      throw Refusal("wrong number of arguments");
    return words;
  }
};

}  // namespace

/// By name: an act is answered by "ok", a question by what was asked.
struct Console::Commands {
  static inline const std::vector<Command<void>> Acts = {
      {"type", 2, 2,
       [](Console& c, const Words& words) {
         if (c.Usable<TextBox>(words[0]).Locked) throw Refusal(words[0] + " is locked");
         c.stage_.Person->Type(c.Focused<TextBox>(words[0]), words[1]);
       }},
      {"focus", 1, 1, [](Console& c, const Words& words) { c.Focused<FocusControl>(words[0]); }},
      {"key", 2, 3,
       [](Console& c, const Words& words) {
         static const std::map<std::string, Keys::Modifier> modifiers = {
             {"", Keys::Modifier::None}, {"shift", Keys::Modifier::Shift}, {"ctrl", Keys::Modifier::Ctrl}};
         const auto with = modifiers.find(words.size() > 2 ? words[2] : "");
         if (with == modifiers.end()) throw Refusal("no modifier: " + words[2]);
         c.stage_.Person->Key(c.Focused<FocusControl>(words[0]), Whole(words[1]), with->second);
       }},
      {"char", 2, 2,
       [](Console& c, const Words& words) {
         if (words[1].empty()) throw Refusal("no character");
         c.stage_.Person->Char(c.Focused<FocusControl>(words[0]), words[1]);
       }},
      {"click", 1, 1,
       [](Console& c, const Words& words) {
         auto& control = c.Usable<Control>(words[0]);
         if (dynamic_cast<HasClick*>(&control) == nullptr) throw Refusal("not possible with " + words[0]);
         if (auto* const focusable = dynamic_cast<FocusControl*>(&control))
           c.stage_.Person->Focus(*focusable);
         c.stage_.Person->Click(control);
       }},
      {"dblclick", 1, 1,
       [](Console& c, const Words& words) {
         if (dynamic_cast<FlexGrid*>(&c.Find(words[0])) != nullptr) {
           c.stage_.Person->DoubleClick(c.Usable<FlexGrid>(words[0]));
         } else {
           c.stage_.Person->DoubleClick(c.Focused<ListBox>(words[0]));
         }
       }},
      {"pick", 2, 2,
       [](Console& c, const Words& words) {
         const int index = Whole(words[1]);
         ListBox& list = c.Usable<ListBox>(words[0]);
         if (index < 0 || index >= static_cast<int>(list.Items.Get().size())) throw Refusal("no such line");
         c.stage_.Person->Pick(c.Focused<ListBox>(words[0]), index);
       }},
      {"caret", 2, 2,
       [](Console& c, const Words& words) {
         c.stage_.Person->Select(c.Usable<TextBox>(words[0]), {Whole(words[1]), 0});
       }},
      {"mark", 3, 3,
       [](Console& c, const Words& words) {
         c.stage_.Person->Select(c.Usable<TextBox>(words[0]), {Whole(words[1]), Whole(words[2])});
       }},
      {"select", 5, 5,
       [](Console& c, const Words& words) {
         const GridBlock block{Whole(words[1]), Whole(words[2]), Whole(words[3]), Whole(words[4])};
         const FlexGrid& grid = c.Grid(words[0]);
         if (block.Top() < 1 || block.Left() < 1 || block.Bottom() >= grid.Rows() ||
             block.Right() >= grid.Cols())
           throw Refusal("no such cells");
         c.stage_.Person->SelectBlock(c.Usable<FlexGrid>(words[0]), block);
       }},
      {"answer", 1, 1,
       [](Console& c, const Words& words) {
         static const std::map<std::string, BoxAnswer> answers = {{"Yes", BoxAnswer::Yes},
                                                                  {"No", BoxAnswer::No},
                                                                  {"Cancel", BoxAnswer::Cancel},
                                                                  {"Ok", BoxAnswer::Ok}};
         const auto answer = answers.find(words[0]);
         if (answer == answers.end()) throw Refusal("no answer: " + words[0]);
         c.services_.messageBox.Answers.push_back(answer->second);
       }},
      {"choose", 1, 1,
       [](Console& c, const Words& words) {
         c.services_.fileDialog.Choices.push_back(words[0] == "-" ? std::nullopt : std::optional(words[0]));
       }},
      {"close", 0, 0, [](Console& c, const Words&) { c.stage_.Person->Close(c.Top()); }},
      {"locale", 2, 2,
       [](Console& c, const Words& words) {
         c.locale_ = {words[0], words[1]};
       }},
      {"date", 1, 1, [](Console& c, const Words& words) { c.services_.clock.Today = words[0]; }},
      {"page", 2, 2,
       [](Console& c, const Words& words) {
         const int width = Whole(words[0]);
         const int height = Whole(words[1]);
         if (width <= 0 || height <= 0) throw Refusal("no paper");
         c.services_.printerDialog.Paper.Width = width;
         c.services_.printerDialog.Paper.Height = height;
       }},
      {"printer", 1, 1,
       [](Console& c, const Words& words) {
         if (words[0] != "ok" && words[0] != "cancel") throw Refusal("no answer: " + words[0]);
         c.services_.printerDialog.Answers.push_back(words[0] == "ok");
       }},
  };
  static inline const std::vector<Command<std::string>> Questions = {
      {"form", 0, 0, [](Console& c, const Words&) -> std::string { return c.Top().Name(); }},
      {"get", 1, 1,
       [](Console& c, const Words& words) -> std::string {
         const std::size_t dot = words[0].rfind('.');
         if (dot == std::string::npos) throw Refusal("no property named");
         std::string_view path = std::string_view(words[0]).substr(0, dot);
         const std::string property = words[0].substr(dot + 1);
         const Form& form = c.FormOf(path);
         if (path.empty())
           return Known(property == "Caption" ? std::optional(form.Caption.Get()) : std::nullopt, words[0]);
         return Known(Inspect::ControlProperty(c.Find(words[0].substr(0, dot)), property), words[0]);
       }},
      {"cell", 3, 3,
       [](Console& c, const Words& words) -> std::string {
         const FlexGrid& grid = c.Grid(words[0]);
         const int row = Whole(words[1]);
         const int col = Whole(words[2]);
         if (row < 0 || row >= grid.Rows() || col < 0 || col >= grid.Cols()) throw Refusal("no such cell");
         return Escaped(grid.Text(row, col));
       }},
      {"size", 1, 1,
       [](Console& c, const Words& words) -> std::string {
         const FlexGrid& grid = c.Grid(words[0]);
         return std::to_string(grid.Rows()) + " " + std::to_string(grid.Cols());
       }},
      {"chart", 1, 1,
       [](Console& c, const Words& words) -> std::string {
         const auto* const chart = dynamic_cast<const XYChart*>(&c.Find(words[0]));
         if (chart == nullptr) throw Refusal("not possible with " + words[0]);
         std::string reply = std::to_string(chart->Rows().size()) + " " + std::to_string(chart->Cols());
         for (const std::string& value : Inspect::ChartValues(*chart)) reply += "\t" + Escaped(value);
         return reply;
       }},
      {"record", 1, 3,
       [](Console&, const Words& words) -> std::string {
         return Known(Inspect::RecordField(words), words[0]);
       }},
      {"shared", 1, 1,
       [](Console&, const Words& words) -> std::string {
         return Known(Inspect::SharedVariable(words[0]), words[0]);
       }},
      {"clipboard", 0, 1,
       [](Console& c, const Words& words) -> std::string {
         if (words.empty()) return Escaped(c.services_.clipboard.Text());
         c.services_.clipboard.SetText(words[0]);
         return "ok";
       }},
      {"messages", 0, 0,
       [](Console& c, const Words&) -> std::string {
         std::string reply;
         for (const FakeMessageBox::Shown& box : std::exchange(c.services_.messageBox.Boxes, {})) {
           if (!reply.empty()) reply += '\t';
           const char* const icon = box.Icon == BoxIcon::Exclamation ? "exclamation" : "information";
           reply += Escaped(box.Title + "|" + icon + "|" + box.Text);
         }
         return reply;
       }},
      {"today", 0, 0,
       [](Console& c, const Words&) -> std::string { return Escaped(c.services_.clock.ShortDate()); }},
      {"printed", 0, 0,
       [](Console& c, const Words&) -> std::string {
         std::string reply;
         for (const std::string& call : c.services_.printerDialog.Paper.TakeCalls()) {
           if (!reply.empty()) reply += '\t';
           reply += Escaped(call);
         }
         return reply;
       }},
  };
};

Console::Console(MakeStage makeStage, ReadLine read, WriteReply write)
    : makeStage_(std::move(makeStage)), read_(std::move(read)), write_(std::move(write)) {}

// The windows of a stage show the controls of the program, so they go first.
Console::~Console() {
  stage_ = {};
}

void Console::Run() {
  Obey([] { return false; });
}

void Console::Obey(const std::function<bool()>& done) {
  while (!done() && !unwinding_) {
    if (pending_) write_(*pending_);
    pending_.reset();
    const std::optional<std::string> line = read_();
    if (!line) {
      unwinding_ = true;
      return;
    }
    const std::size_t number = ++linesRead_;
    const std::string reply = Execute(*line);
    // A line that opened a window was answered then, and others after it.
    if (number == linesRead_) pending_ = reply;
    if (restart_ && stage_.Windows->OpenForms().size() <= 1) Restart();
  }
}

void Console::Wait(Form& form) {
  if (!unwinding_) {
    pending_ = "ok";
    Obey([&form] { return !form.IsLoaded(); });
  }
  if (unwinding_) CancelForm(form);
}

std::string Console::Execute(const std::string& line) {
  try {
    return Perform(line);
  } catch (const Refusal& refusal) {
    return std::string("error: ") + refusal.what();
  }
}

std::string Console::Perform(const std::string& line) {
  const std::size_t blank = line.find(' ');
  const std::string name = line.substr(0, blank);
  std::optional<std::string> rest;
  if (blank != std::string::npos) rest = line.substr(blank + 1);
  if (name == "start") {
    restart_ = Unescaped(rest.value_or(""));
    unwinding_ = stage_.Windows && stage_.Windows->OpenForms().size() > 1;
    if (!unwinding_) Restart();
    return "ok";
  }
  const bool ended = program_ && !program_->Main.IsLoaded();
  if (ended || (!program_ && name != "locale" && name != "date" && name != "page"))
    throw Refusal("not running");
  for (const auto& act : Commands::Acts) {
    if (act.Name != name) continue;
    act.Perform(*this, act.Arguments(rest));
    return "ok";
  }
  for (const auto& question : Commands::Questions) {
    if (question.Name == name) return question.Perform(*this, question.Arguments(rest));
  }
  throw Refusal("unknown command: " + name);
}

void Console::Restart() {
  unwinding_ = false;
  stage_ = {};
  program_.reset();
  SettingsFile::Use(*std::exchange(restart_, std::nullopt));
  SetNumberLocale(locale_);
  stage_ = makeStage_([this](Form& form) { Wait(form); });
  program_ = std::make_unique<Program>(services_.With(*stage_.Windows));
  program_->Start();
  pending_ = "ok";
}

Form& Console::Top() const {
  Form* const top = stage_.Windows->Top();
  if (top == nullptr) throw Refusal("not running");
  return *top;
}

Form& Console::FormOf(std::string_view& path) const {
  const std::string_view first = path.substr(0, path.find('.'));
  for (const auto* const forms : {&stage_.Windows->OpenForms(), &stage_.Windows->FormsBeside()}) {
    for (Form* const form : *forms) {
      if (form->Name() != first) continue;
      path.remove_prefix(std::min(path.size(), first.size() + 1));
      return *form;
    }
  }
  return Top();
}

Control& Console::Find(std::string_view path) const {
  const std::string whole(path);
  Control* const control = FormOf(path).Find(path);
  if (control == nullptr) throw Refusal("no control " + whole);
  return *control;
}

template <class Kind>
Kind& Console::Usable(const std::string& name) const {
  Control& control = Find(name);
  auto* const usable = dynamic_cast<Kind*>(&control);
  if (usable == nullptr) throw Refusal("not possible with " + name);
  const auto& beside = stage_.Windows->FormsBeside();
  const bool isBeside = std::ranges::find(beside, &control.Owner()) != beside.end();
  if (isBeside ? !control.Owner().IsLoaded() : &control.Owner() != &Top())
    throw Refusal("another window is on top");
  if (!control.Visible) throw Refusal(name + " is hidden");
  if (!control.Enabled) throw Refusal(name + " is disabled");
  return *usable;
}

template <class Kind>
Kind& Console::Focused(const std::string& name) {
  Kind& control = Usable<Kind>(name);
  stage_.Person->Focus(control);
  return control;
}

const FlexGrid& Console::Grid(const std::string& name) const {
  const auto* const grid = dynamic_cast<const FlexGrid*>(&Find(name));
  if (grid == nullptr) throw Refusal("not possible with " + name);
  return *grid;
}
