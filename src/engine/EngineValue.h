// A value cell of the problem record: a number, a text, or the boolean false of an undefined result.
#pragma once

#include <string>
#include <type_traits>
#include <utility>
#include <variant>

template <typename N>
concept CellNumber = std::is_arithmetic_v<N> && !std::is_same_v<N, bool>;

class EngineValue {
 public:
  EngineValue() = default;  // the empty text
  EngineValue(CellNumber auto number) : value_(static_cast<double>(number)) {}
  EngineValue(std::string text) : value_(std::move(text)) {}
  EngineValue(const char* text) : value_(std::string(text)) {}

  // Without a cell in between: the operations assign little else.
  EngineValue& operator=(CellNumber auto number) {
    value_ = static_cast<double>(number);
    return *this;
  }

  static EngineValue False();

  bool IsDouble() const { return std::holds_alternative<double>(value_); }
  bool IsText() const { return std::holds_alternative<std::string>(value_); }
  bool IsFalse() const { return std::holds_alternative<std::monostate>(value_); }
  bool IsEmptyText() const {
    const auto* text = std::get_if<std::string>(&value_);
    return text != nullptr && text->empty();
  }
  bool IsNumeric() const;  // a double, or a text that is one number in the current locale

  // A double itself, the leading number of a text; 0 for a text without one and for false.
  double Number() const { return IsDouble() ? *std::get_if<double>(&value_) : TextNumber(); }

  // A text itself, a number plainly in the current locale, false blank.
  std::string Text() const;

  bool operator==(const EngineValue& other) const;

 private:
  double TextNumber() const;

  std::variant<std::string, double, std::monostate> value_;  // monostate: false
};
