// The stage of a conversation with the controllers alone.
#pragma once

#include <utility>

#include "console/Console.h"
#include "console/ControllerHands.h"

/// Windows that are never seen: a modal one only waits.
class ConsoleHost : public WindowHost {
 public:
  explicit ConsoleHost(std::function<void(Form&)> wait) : wait_(std::move(wait)) {}

 protected:
  void Open(Form&) override {}
  void Raise(Form&) override {}
  void Wait(Form& form) override { wait_(form); }

 private:
  std::function<void(Form&)> wait_;
};

inline Console::Stage ControllerStage(std::function<void(Form&)> wait) {
  return {std::make_unique<ConsoleHost>(std::move(wait)), std::make_unique<ControllerHands>()};
}
