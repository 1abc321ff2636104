// Numbers typed with a unit, and digits counted up and down. Values worked by hand from the definitions of
// the units and the factors of the unit table.
#include "app/main/TypedUnits.h"
#include "app/Units.h"
#include "support/LocaleTest.h"

namespace {

using TypedUnits::Kind;

class TypedUnitsTest : public LocaleTest {};
INSTANTIATE_LOCALES(TypedUnitsTest);

TEST_P(TypedUnitsTest, ReadsWhatAPersonWritesInTheUnitOfTheBox) {
  struct Row {
    Kind Of;
    int Units, Quantity;
    const char* Typed;
    const char* Number;  // empty: not understood
  };
  constexpr int Ft = Units::English;
  constexpr int M = Units::Metric;
  const Row rows[] = {
      {Kind::Flow, M, Units::Flow, "35 L/s", "0.035"},
      {Kind::Flow, M, Units::Flow, " 1,250.5l/s ", "1.2505"},
      {Kind::Flow, M, Units::Flow, "2.5 m³/s", "2.5"},
      {Kind::Flow, M, Units::Flow, "2.5\u00A0m3/s", "2.5"},
      {Kind::Flow, M, Units::Flow, "2.5e-1 m^3/s", "0.25"},
      {Kind::Flow, M, Units::Flow, "100 cfs", "2.831684"},   // / 35.31467
      {Kind::Flow, M, Units::Flow, "86.4 ML/d", "1"},        // 86,400 m³ in 86,400 s
      {Kind::Flow, Ft, Units::Flow, "35 L/s", "1.236013"},   // 0.035 x 35.31467
      {Kind::Flow, Ft, Units::Flow, "5 Ml/d", "2.043673"},   // 35.31467 / 17.28
      {Kind::Flow, Ft, Units::Flow, "500 GPM", "1.114005"},  // 500 x 231 / 1728 / 60
      {Kind::Flow, Ft, Units::Flow, "1 mgd", "1.547229"},    // 1e6 x 231 / 1728 / 86,400
      {Kind::Flow, Ft, Units::Flow, "12345678 cfs", "12345680"},
      {Kind::Flow, Ft, Units::Flow, "1.2345675 ft3/s", "1.234568"},
      {Kind::Flow, Ft, Units::Flow, "0.000001234 cfs", "1.234e-06"},
      {Kind::Flow, Ft, Units::Flow, "5 ml/d", ""},
      {Kind::Flow, Ft, Units::Flow, "5 m", ""},
      {Kind::Flow, Ft, Units::Flow, "5", ""},
      {Kind::Flow, Ft, Units::Flow, "L/s", ""},
      {Kind::Flow, Ft, Units::Flow, "5 L/s 3 L/s", ""},
      {Kind::Flow, Ft, Units::Flow, "1.5e308 mgd", ""},
      {Kind::Length, Ft, Units::Length, "4' 6\"", "4.5"},
      {Kind::Length, Ft, Units::Length, "4'6″", "4.5"},
      {Kind::Length, Ft, Units::Length, "-4'-6\"", "-4.5"},
      {Kind::Length, Ft, Units::Length, "4 ft 6 in", "4.5"},
      {Kind::Length, Ft, Units::Length, "2 yd", "6"},
      {Kind::Length, Ft, Units::Length, "25 cm", "0.82021"},
      {Kind::Length, M, Units::Length, "3 FT", "0.9144"},
      {Kind::Length, M, Units::Length, "1 m 5 cm", "1.05"},
      {Kind::Length, Ft, Units::Diameter, "1' 3\"", "15"},
      {Kind::Length, Ft, Units::Diameter, "600 mm", "23.62205"},  // 1.968504 ft x 12
      {Kind::Length, M, Units::Diameter, "0.6 m", "600"},
      {Kind::Length, M, Units::Diameter, "24 in", "609.6"},
      {Kind::Length, Ft, Units::Length, "6\" 4'", ""},
      {Kind::Length, Ft, Units::Length, "4' 6", ""},
      {Kind::Length, Ft, Units::Length, "4' --6\"", ""},
      {Kind::Length, Ft, Units::Length, "4 apples", ""},
      {Kind::Length, Ft, Units::Length, "4 %", ""},
      {Kind::Slope, M, Units::Slope, "0.4 %", "0.004"},
      {Kind::Slope, M, Units::Slope, "4‰", "0.004"},
      {Kind::Slope, M, Units::Slope, "1:250", "0.004"},
      {Kind::Slope, M, Units::Slope, "1 : 3", "0.3333333"},
      {Kind::Slope, M, Units::Slope, "0.004 ft/ft", "0.004"},
      {Kind::Slope, M, Units::Slope, "250:1", ""},
      {Kind::Slope, M, Units::Slope, "1:0", ""},
      {Kind::Slope, M, Units::Slope, "1/250", ""},
      {Kind::SideSlope, M, Units::Dimensionless, "1.5:1", "1.5"},
      {Kind::SideSlope, M, Units::Dimensionless, "1V:2.5H", "2.5"},
      {Kind::SideSlope, M, Units::Dimensionless, "2.5 h : 1 v", "2.5"},
      {Kind::SideSlope, M, Units::Dimensionless, "1:2", ""},
      {Kind::SideSlope, M, Units::Dimensionless, "2V:3H", ""},
      {Kind::SideSlope, M, Units::Dimensionless, "2H:1H", ""},
      {Kind::Plain, M, Units::Dimensionless, "2 %", ""},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.Typed);
    const auto amount = TypedUnits::Read(Respelled(GetParam(), row.Typed), row.Of);
    const std::string number =
        amount ? TypedUnits::SevenDigits(amount->Value / UnitFactor(row.Units, row.Quantity)) : "";
    EXPECT_EQ(number, Respelled(GetParam(), row.Number));
  }
}

TEST_P(TypedUnitsTest, CountsInTheLastDigitTyped) {
  struct Row {
    const char *Typed, *Up, *Down;
  };
  for (const Row& row : std::initializer_list<Row>{{"0.015", "0.016", "0.014"},
                                                   {"1.9", "2.0", "1.8"},
                                                   {"10.00", "10.01", "9.99"},
                                                   {"-0.1", "0.0", "-0.2"},
                                                   {" .5", "0.6", "0.4"},
                                                   {"1e-3", "2e-3", "0e-3"},
                                                   {"999,999", "1000000", "999998"},
                                                   {"35 L/s", "36 L/s", "34 L/s"}}) {
    EXPECT_EQ(TypedUnits::Nudged(Spelled(row.Typed), Kind::Flow, 1), Spelled(row.Up));
    EXPECT_EQ(TypedUnits::Nudged(Spelled(row.Typed), Kind::Flow, -1), Spelled(row.Down));
  }
  for (const char* typed : {"", "abc", "4' 6\"", "1:250", "12345678901234567890"}) {
    EXPECT_EQ(TypedUnits::Nudged(typed, Kind::Length, 1), std::nullopt);
  }
}

}  // namespace
