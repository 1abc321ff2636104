// The console: obeys lines such as "type tbFlow 400" and replies to each. It holds the whole program on fake
// services; whoever makes the stage decides whether the lines act on the controllers or on real widgets.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "console/Hands.h"
#include "engine/NumberText.h"
#include "program/Program.h"
#include "support/FakeServices.h"

class Console {
 public:
  /// Where a run of the program takes place.
  struct Stage {
    std::unique_ptr<WindowHost> Windows;
    std::unique_ptr<Hands> Person;
  };
  /// Makes a stage whose modal windows wait by calling `wait`.
  using MakeStage = std::function<Stage(std::function<void(Form&)> wait)>;
  using ReadLine = std::function<std::optional<std::string>()>;
  using WriteReply = std::function<void(const std::string&)>;

  Console(MakeStage makeStage, ReadLine read, WriteReply write);
  ~Console();
  Console(const Console&) = delete;
  Console& operator=(const Console&) = delete;

  /// Obeys lines until there are no more.
  void Run();

 private:
  struct Commands;

  void Obey(const std::function<bool()>& done);
  void Wait(Form& form);
  std::string Execute(const std::string& line);
  std::string Perform(const std::string& line);
  void Restart();

  Form& Top() const;
  Form& FormOf(std::string_view& path) const;
  /// The control of this name, of the form named before it or else of the form on top.
  Control& Find(std::string_view path) const;
  /// Likewise, where a person can act on it now.
  template <class Kind>
  Kind& Usable(const std::string& name) const;
  template <class Kind>
  Kind& Focused(const std::string& name);
  const FlexGrid& Grid(const std::string& name) const;

  MakeStage makeStage_;
  ReadLine read_;
  WriteReply write_;
  FakeServices services_;
  NumberLocale locale_;
  std::unique_ptr<Program> program_;
  Stage stage_;

  std::optional<std::string> pending_;  // reply to the last line, sent when the program waits for the next
  std::size_t linesRead_ = 0;
  std::optional<std::string> restart_;  // settings file of the run to start once all forms are unwound
  bool unwinding_ = false;              // open forms are being cancelled, one after the other
};
