// The kinds of control that the windows are made of. A control knows its name and registers itself with its
// form; a view shows it, a conversation of the console drives it, and neither knows more of a window than
// this list.
#pragma once

#include <array>
#include <deque>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/Form.h"
#include "platform/Keys.h"
#include "platform/Property.h"

class Control {
 public:
  Control(Form* form, std::string name);
  virtual ~Control() = default;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  const std::string& Name() const { return name_; }
  Form& Owner() const { return form_; }

  Property<bool> Enabled{true};
  Property<bool> Visible{true};
  Property<std::string> ToolTip;

 private:
  Form& form_;
  std::string name_;
};

/// A control that can have the keyboard. Leaving it raises Validate and LostFocus, entering it GotFocus.
class FocusControl : public Control {
 public:
  using Control::Control;

  std::function<void()> Validate;
  std::function<void()> LostFocus;
  std::function<void()> GotFocus;

  /// False: entering this control leaves an edit in another one as it is.
  virtual bool CausesValidation() const { return true; }

  std::function<void()> FocusView;  // set by the view: gives the widget the keyboard
};

/// The part that labels, buttons, option buttons and menu items share.
struct HasCaption {
  virtual ~HasCaption() = default;
  Property<std::string> Caption;
};

struct Label : Control, HasCaption {
  using Control::Control;
};

/// What the user can press.
struct HasClick {
  virtual ~HasClick() = default;
  std::function<void()> Click;
};

struct MenuItem : Control, HasCaption, HasClick {
  using Control::Control;
  Property<bool> Checked{false};
};

/// A tool bar button: takes no focus, so pressing it leaves the box being typed into as it is.
struct ToolButton : Control, HasClick {
  using Control::Control;
};

struct Button : FocusControl, HasCaption, HasClick {
  using FocusControl::FocusControl;
};

/// One of several; choosing one unchecks the others, which the form's own list of them names.
struct OptionButton : FocusControl, HasCaption, HasClick {
  using FocusControl::FocusControl;
  Property<bool> Value{false};
};

/// On or off by itself.
struct CheckBox : OptionButton {
  using OptionButton::OptionButton;
};

/// A part of a text, in characters (code points).
struct TextRange {
  int Start = 0;
  int Length = 0;
  bool operator==(const TextRange&) const = default;
};

class TextBox : public FocusControl {
 public:
  using FocusControl::FocusControl;

  Property<std::string> Text;  ///< UTF-8
  Property<TextRange> Selection;
  Property<bool> Locked{false};
  Property<bool> Bold{false};
  Property<int> BackColor{White};
  /// The text cannot be used as it is: the view tints the box.
  Property<bool> Offending{false};

  std::function<void()>& Change = Text.Event;
  /// A key goes down, by its code; true when the key is used up and the box does not see it.
  std::function<bool(int keyCode, Keys::Modifier)> KeyDown;

  int Length() const;  ///< of the text, in characters
  /// The selected part of the text.
  std::string SelectedText() const;
  /// The program's own text: selected as a whole when the one before was, so that typing replaces it.
  void Rewrite(const std::string& text);
  /// Puts `with` in the place of the selection and the caret behind it.
  void ReplaceSelection(std::string_view with);
  /// Replaces the selection by the first line of a text from elsewhere that is not empty. A box that would
  /// grow beyond LongestText stays as it is and raises TooLong.
  void Paste(std::string_view from);
  std::function<void()> TooLong;
  static constexpr int LongestText = 100'000;  ///< characters

  /// What was typed before cannot be undone any more.
  void ForgetEdits() {
    if (ForgetEditsView) ForgetEditsView();
  }
  std::function<void()> ForgetEditsView;  // set by the view
  /// Takes the last edit of the text back, or makes it again; false when there is none.
  bool Undo() { return UndoView && UndoView(); }
  bool Redo() { return RedoView && RedoView(); }
  std::function<bool()> UndoView, RedoView;  // set by the view
  /// The keys for undo and redo belong to the menu of the window, which asks the box first.
  bool UndoneByMenu = false;
  void SelectAll();

  // Colours as blue-green-red bytes; a view maps them to the roles of its palette.
  static constexpr int White = 0xFFFFFF;
  static constexpr int LightYellow = 0xC0FFFF;
};

/// A page of text that can be read, selected and searched, but not edited.
struct TextPage : FocusControl {
  using FocusControl::FocusControl;
  /// The body of a web page.
  Property<std::string> Html;
  std::string Text;  ///< the same as plain text

  // Set by the view.
  std::function<void(const std::string& heading)> ScrollView;  ///< brings the heading into sight
  std::function<void()> FindView;                              ///< asks for a text and finds it
};

/// A list of lines; choosing one, by hand or by the program, raises Click.
struct ListBox : FocusControl {
  using FocusControl::FocusControl;
  Property<std::vector<std::string>> Items;
  Property<int> ListIndex{-1};
  std::function<void()>& Click = ListIndex.Event;
  std::function<void()> DblClick;
};

/// A list of which only the chosen line is shown until it is dropped down.
struct ComboBox : ListBox {
  using ListBox::ListBox;
};

/// Controls of one name and kind, numbered from `First`: "optSigDigs_1", "optSigDigs_2", ...
template <class Kind, int First, int Last>
class ControlArray {
 public:
  ControlArray(Form* form, const std::string& name) {
    for (int index = First; index <= Last; ++index)
      members_.emplace_back(form, name + "_" + std::to_string(index));
  }
  Kind& operator[](int index) { return members_[static_cast<std::size_t>(index - First)]; }
  static constexpr int Lower = First;
  static constexpr int Upper = Last;

 private:
  std::deque<Kind> members_;
};
