// The value cell; see EngineValue.h.
#include "engine/EngineValue.h"

#include "engine/NumberText.h"

bool EngineValue::operator==(const EngineValue& other) const = default;

EngineValue EngineValue::False() {
  EngineValue value;
  value.value_ = std::monostate{};
  return value;
}

bool EngineValue::IsNumeric() const {
  const auto* text = std::get_if<std::string>(&value_);
  return text != nullptr ? ::IsNumeric(*text) : IsDouble();
}

double EngineValue::TextNumber() const {
  const auto* text = std::get_if<std::string>(&value_);
  return text != nullptr ? LeadingNumber(*text) : 0;
}

std::string EngineValue::Text() const {
  if (const auto* text = std::get_if<std::string>(&value_)) return *text;
  return IsDouble() ? PlainNumberInLocale(Number()) : std::string();
}
