// The whole program with modal windows that a test looks at while they are open.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>

#include "app/SettingsFile.h"
#include "program/Program.h"
#include "support/FakeServices.h"

class HelpStage : public testing::Test {
 protected:
  HelpStage() {
    SettingsFile::Use("");
    program_.Start();
  }

  FakeServices fakes_;
  std::function<void(Form&)> inModal_;
  frmMain& Main() { return program_.Main; }

 private:
  class Host : public WindowHost {
   public:
    explicit Host(HelpStage& stage) : stage_(stage) {}
    void Open(Form&) override {}
    void Wait(Form& form) override {
      stage_.inModal_(form);
      form.Unload();
    }

   private:
    HelpStage& stage_;
  };
  Host windows_{*this};
  Program program_{fakes_.With(windows_)};
};
