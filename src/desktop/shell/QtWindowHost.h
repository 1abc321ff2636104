// Shows forms in windows of the desktop: one view for each form, focus and closing passed on to the form.
#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>
#include <map>

#include "platform/Services.h"

class QtWindowHost : public WindowHost {
 public:
  QtWindowHost();
  ~QtWindowHost() override;
  QtWindowHost(const QtWindowHost&) = delete;
  QtWindowHost& operator=(const QtWindowHost&) = delete;

  /// The window of an open form; null when it has none.
  QWidget* WindowOf(const Form& form) const;

 protected:
  /// Returns when the form is unloaded; until then the user goes on working.
  virtual void WaitUntilUnloaded(Form& form);

 private:
  void Open(Form& form) override;
  void Raise(Form& form) override;
  void Wait(Form& form) final;

  std::map<const Form*, QPointer<QWidget>> windows_;
  QObject connections_;
};
