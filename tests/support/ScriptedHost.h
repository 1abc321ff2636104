// Windows that are never seen: a test says beforehand what a person does in the modal ones to come.
#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <functional>

#include "platform/Form.h"
#include "platform/Services.h"

class ScriptedHost : public WindowHost {
 public:
  ~ScriptedHost() override { EXPECT_TRUE(acts_.empty()) << "a window did not open"; }

  /// What is done in the next modal window, which is then closed by its title-bar box if it is still open.
  template <class Window>
  void Then(std::function<void(Window&)> act) {
    acts_.push_back([act](Form& form) {
      auto* const window = dynamic_cast<Window*>(&form);
      ASSERT_NE(window, nullptr) << form.Name();
      act(*window);
    });
  }

 private:
  void Open(Form&) override {}
  void Raise(Form&) override {}
  void Wait(Form& form) override {
    ASSERT_FALSE(acts_.empty()) << form.Name() << " was not expected";
    const auto act = acts_.front();
    acts_.pop_front();
    act(form);
    form.Unload();
  }

  std::deque<std::function<void(Form&)>> acts_;
};
