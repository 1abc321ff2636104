// A window without a screen: its controls by name, its focus, and its life from load to unload.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Property.h"

class Control;
class FocusControl;

class Form {
 public:
  explicit Form(std::string name) : name_(std::move(name)) {}
  virtual ~Form() = default;
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  Property<std::string> Caption;

  const std::string& Name() const { return name_; }
  const std::vector<Control*>& Controls() const { return controls_; }
  Control* Find(std::string_view controlName) const;

  bool IsLoaded() const { return loaded_; }
  void Load();
  /// Asks Form_QueryUnload first: a form that refuses stays open.
  void Unload();
  /// Called by the view of the form, which takes its window away.
  std::function<void()> UnloadView;

  virtual void Form_Activate() {}

  FocusControl* ActiveControl() const { return active_; }
  /// Leaves the active control (Validate, LostFocus) and enters `next` (GotFocus).
  void MoveFocus(FocusControl& next);
  /// What was typed into its boxes cannot be undone any more: it belongs to another problem.
  void ForgetEdits() const;

 protected:
  virtual void Form_Load() {}
  virtual bool Form_QueryUnload() { return true; }

 private:
  friend class Control;
  std::string name_;
  std::vector<Control*> controls_;
  FocusControl* active_ = nullptr;
  bool loaded_ = false;
};
