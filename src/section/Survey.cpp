// See Survey.h.
#include "section/Survey.h"

#include "app/Units.h"

namespace Survey {

LengthUnit Feet() {
  return {"feet", UnitFactor(Units::English, Units::Length)};
}

LengthUnit Metres() {
  return {"metres", UnitFactor(Units::Metric, Units::Length)};
}

Watch PartOf(const Watch& watch, double from, double to) {
  return [watch, from, to](double share) { watch(from + (to - from) * share); };
}

void Refuse(std::size_t line, std::size_t column, const std::string& why) {
  const std::string place = column == 0 ? "" : ", column " + std::to_string(column);
  throw std::runtime_error("Line " + std::to_string(line) + place + ": " + why);
}

std::string InQuotes(std::string_view text) {
  return '"' + std::string(text) + '"';
}

std::string Counted(std::size_t count, const std::string& thing) {
  return std::to_string(count) + " " + thing + (count == 1 ? "" : "s");
}

}  // namespace Survey
