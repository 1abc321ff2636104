// Surveys as they come: small files of every shape, each read as a person would read it or refused with the
// reason.
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>

#include "../../fuzz/PointsRoundTrip.h"
#include "engine/ManningIrreg.h"
#include "files/WholeFile.h"
#include "section/Import.h"
#include "section/PointsCsv.h"
#include "section/Thinning.h"
#include "support/LocaleTest.h"

namespace {

using namespace Survey;

constexpr const char* KindNames[] = {"columns", "width",  "offset", "units", "order", "repeats",
                                     "strange", "breaks", "walls",  "n",     "front", "thin"};

std::string Listed(const Mended& mended) {
  std::string list;
  for (const Change& change : mended.Changes)
    list += (list.empty() ? "" : " ") + std::string(KindNames[static_cast<std::size_t>(change.What)]);
  return list;
}

/// "station elevation n" of the points, a comma between them, whatever the decimal sign.
std::string PointsOf(const Mended& mended) {
  std::string list;
  for (int row = 1; row <= IrregTable::PointCount(mended.Table); ++row) {
    const auto& texts = mended.Table[static_cast<std::size_t>(row)];
    list += row > 1 ? ", " : "";
    list += PlainNumber(NumericValue(texts[1]).value()) + " " + PlainNumber(NumericValue(texts[2]).value());
    if (!texts[3].empty()) list += " " + PlainNumber(NumericValue(texts[3]).value());
  }
  return list;
}

const std::string Channel = "0 10 0.03, 5 4, 15 4, 20 10";
const std::string Wide = "0 10.5 0.03, 5.5 4, 15.5 4, 20 10.5";
const std::string MetricInFeet = "0 9.8425 0.03, 4.9213 3.2808, 14.7638 3.2808, 19.685 9.8425";
const std::string River = "0 10 0.06, 10 10, 12 7.6 0.03, 15 4, 25 4, 30 10 0.08, 40 10";
const std::string Sewer = "0 110 0.06, 20 110 0.03, 30 104, 50 104, 60 110 0.08, 80 110";

const std::string NoStation = "No column is known as the station: choose it in the lists.";
const std::string NoN = "The first points have no n: enter one.";

/// Files that are read as this channel, with nothing to change.
const char* const AllOfTheChannel[] = {
    "plain.csv",        "head.csv",   "codes-no-head.csv", "extra-columns.csv", "feet-after-comma.csv",
    "units-apart.csv",  "blanks.txt", "blanks-units.txt",  "tabs.txt",          "comments.txt",
    "title.csv",        "utf16.txt",  "utf16-big.txt",     "windows-1252.csv",  "utf8-mark.csv",
    "old-line-ends.csv"};

/// A file, its points in feet, what is on the list of changes, and the reason why it cannot be used yet.
struct Shape {
  std::string File, Points, Changes, Reason;
};
const Shape Shapes[] = {
    {"wrong-order.csv", Channel, "columns", ""},
    {"order-and-unit.csv", MetricInFeet, "columns units", ""},
    {"point-numbers.csv", "0 10, 5 4, 15 4, 20 10", "columns", NoN},
    {"point-numbers-no-head.csv", "", "", NoStation},
    {"metres.csv", MetricInFeet, "units", ""},
    {"unit-row.csv", MetricInFeet, "units", ""},
    {"mixed-units.csv", MetricInFeet, "units", ""},
    {"blanks-comma.txt", "0 110.25 0.03, 5.5 104.5, 15.5 104.5, 20 110.25", "", ""},
    {"comma-decimals.csv", Wide, "", ""},
    {"grouped.csv", "1000 10.5 0.03, 1005.5 4, 1015.5 4, 1020 10.5", "", ""},
    {"quoted-commas.csv", Wide, "", ""},
    {"right-to-left.csv", "0 10 0.03, 5 4, 15 4 0.05, 20 10", "order", ""},
    {"walls.csv", "-0.01 10 0.03, 0 4, 10 4, 10.01 10, 20 12", "walls", ""},
    {"tall-wall.csv", "0 12 0.03, 4.98 12, 4.99 8, 5 4, 15 4, 20 10", "walls", ""},
    {"repeated-n.csv", "0 10 0.03, 5 4, 15 4 0.05, 20 10", "n", ""},
    {"repeated-points.csv", Channel, "repeats", ""},
    {"doubles-back.csv", "0 10 0.03, 5 4, 4 3, 15 4, 20 10", "",
     "Line 4, column 1: Station 4 lies before station 5: the section doubles back."},
    {"no-n.csv", "0 10, 5 4, 15 4, 20 10", "", NoN},
    {"n-later.csv", "0 10, 5 4 0.03, 15 4, 20 10", "", NoN},
    {"two-stations.csv", "", "", NoStation},
    {"unknown-head.csv", "", "", NoStation},
    {"one-column.txt", "", "", NoStation},
    {"missing-elevation.csv", "", "", "Line 3, column 2: The elevation is missing."},
    {"not-a-number.csv", "", "", "Line 3, column 2: \"4 or 5\" is not a number."},
    {"two-signs.csv", "", "", "Line 3, column 2: \"4,25\" has another decimal sign than the other numbers."},
    {"river.g01", River, "breaks", "The file does not name its unit of length: choose it in the list."},
    {"sewer.inp", Sewer, "width offset breaks", ""},
    {"sewer-metric.inp",
     "0 360.8924 0.06, 65.6168 360.8924 0.03, 98.4252 341.2074, 164.042 341.2074, "
     "196.8504 360.8924 0.08, 262.4672 360.8924",
     "width offset units breaks", ""},
};

/// Files of which nothing is read.
const std::pair<std::string, std::string> Refused[] = {
    {"behind-the-head.csv", "Line 2, column 3: \"10\" stands behind the last column of the head."},
    {"open-quote.csv", "Line 2, column 2: A quotation mark is not closed."},
    {"heads-only.csv", "There are no points in the file."},
    {"empty.csv", "There are no points in the file."},
    {"river-cut.g01", "Line 7, column 2: The line is cut off."},
    {"river-count.g01", "Line 7: There are more numbers here than the count before them announces."},
    {"river-word.g01", "Line 9, column 2: \"0.b6\" is not a number."},
    {"sewer-cut.inp", "Line 12, column 7: The line is cut off: an elevation has no station."},
    {"sewer-count.inp", "Line 10, column 3: The transect T1 has 6 points, not the 7 announced here."},
    {"sewer-units.inp", "Line 5, column 2: \"XYZ\" is not a known unit of flow."},
};

class SurveyFiles : public LocaleTest {
 protected:
  static Import Read(const std::string& file, int units = 0) {
    return ReadText(WholeFile::Read(DATA "/survey/" + file), units);
  }
  static Import ReadText(const std::string& bytes, int units = 0) {
    return {bytes, units, [](double) {}};
  }
};

TEST_P(SurveyFiles, EveryShapeIsReadAsAPersonWouldReadIt) {
  std::vector<Shape> shapes(std::begin(Shapes), std::end(Shapes));
  for (const char* const file : AllOfTheChannel) shapes.push_back({file, Channel, "", ""});
  for (const Shape& shape : shapes) {
    const Import import = Read(shape.File);
    EXPECT_EQ(import.Result().Reason, shape.Reason) << shape.File;
    EXPECT_EQ(Listed(import.Result()), shape.Changes) << shape.File;
    EXPECT_EQ(PointsOf(import.Result()), shape.Points) << shape.File;
  }
}

TEST_P(SurveyFiles, WhatCannotBeReadIsRefusedWithItsPlace) {
  for (const auto& [file, why] : Refused) {
    try {
      Read(file);
      ADD_FAILURE() << file << " was read";
    } catch (const std::runtime_error& refusal) {
      EXPECT_EQ(refusal.what(), why) << file;
    }
  }
}

TEST_P(SurveyFiles, NothingIsLeftOutWithoutAWord) {
  const auto notes = [](const std::string& file) { return Read(file).Notes(); };
  EXPECT_EQ(notes("plain.csv"), std::vector<std::string>{});
  EXPECT_EQ(notes("title.csv"),
            std::vector<std::string>{"Line 1 is a title and was left out: \"Mill Creek at the bridge\"."});
  EXPECT_EQ(notes("comments.txt"), std::vector<std::string>{"3 comment lines left out."});
  EXPECT_EQ(notes("point-numbers.csv"), std::vector<std::string>{"Column 1 \"Point\" left out."});
  EXPECT_EQ(notes("sewer.inp"), std::vector<std::string>{"The length factor " + Spelled("1.2") +
                                                         " was left out: one section has no length."});
  EXPECT_EQ(ReadText("Station,Elevation,n\n0,5,0.03,wet\n10,4\n,,,done\n").Notes(),
            (std::vector<std::string>{"1 row without a point left out.", "Column 4 left out."}));
}

TEST_P(SurveyFiles, EachStepCanBeLeftOut) {
  const auto without = [](const std::string& file, Kind kind) {
    Import import = Read(file);
    import.Switch(kind, false);
    EXPECT_FALSE(import.Result().Changes.front().On) << file;
    return PointsOf(import.Result()) + "|" + import.Result().Reason;
  };
  EXPECT_EQ(without("metres.csv", Kind::Conversion), "0 3 0.03, 1.5 1, 4.5 1, 6 3|");
  EXPECT_EQ(without("repeated-n.csv", Kind::RepeatedN), "0 10 0.03, 5 4 0.03, 15 4 0.05, 20 10 0.05|");
  EXPECT_EQ(without("walls.csv", Kind::Walls),
            "0 10 0.03, 0 4, 10 4, 10 10, 20 12|Line 3: Stations need to be in ascending order.");
  EXPECT_EQ(without("wrong-order.csv", Kind::Columns),
            "10 0 0.03, 4 5, 4 15, 10 20|Line 3, column 1: Station 4 lies before station 10: the section "
            "doubles back.");
  Import river = Read("river.g01");
  river.ChooseUnit(Feet());
  river.Switch(Kind::Breaks, false);
  EXPECT_EQ(PointsOf(river.Result()), "0 10 0.06, 10 10, 15 4 0.03, 25 4, 30 10 0.08, 40 10")
      << "n begins at the next point";
}

TEST_P(SurveyFiles, WhatThePersonChoosesIsDone) {
  Import columns = Read("point-numbers-no-head.csv");
  columns.ChooseColumns({{Role::Ignored, Role::Station, Role::Elevation, Role::ManningN}, {}});
  EXPECT_EQ(PointsOf(columns.Result()) + columns.Result().Reason, Channel);
  Import river = Read("river.g01");
  ASSERT_EQ(river.Sections().size(), 2U) << "the bridge has no ground";
  EXPECT_EQ(river.Sections()[1].Name, "River mile 12.2");
  river.ChooseSection(1);
  river.ChooseUnit(Metres());
  EXPECT_EQ(PointsOf(river.Result()) + river.Result().Reason,
            "0 26.2467 0.035, 19.685 6.5617, 39.3701 26.2467");
  Import sewer = Read("sewer.inp");
  sewer.ChooseSection(1);
  EXPECT_EQ(PointsOf(sewer.Result()), "0 8 0.04, 6 2, 12 8") << "without banks all of it is the channel";
  Import front = Read("n-later.csv");
  front.ChooseFrontN(Number{0.08, {}});
  EXPECT_EQ(PointsOf(front.Result()) + front.Result().Reason, "0 10 0.08, 5 4 0.03, 15 4, 20 10");
  EXPECT_EQ(Listed(front.Result()), "front");
  EXPECT_EQ(Listed(ReadText("Station,Elevation,n\n0,5,\n9,5,\n").Result()), "") << "no order is changed";
  Import blanks = Read("blanks.txt");
  blanks.ChooseSeparator(',');
  EXPECT_EQ(blanks.Result().Reason, "No column is known as the elevation: choose it in the lists.");
  const Import metric = Read("feet-after-comma.csv", 1);
  EXPECT_EQ(PointsOf(metric.Result()), "0 3.048 0.03, 1.524 1.2192, 4.572 1.2192, 6.096 3.048");
}

TEST_P(SurveyFiles, ASignOfTwoReadingsIsTheUsersOwnOrDoubtful) {
  const std::string own = DecimalComma() ? "0;12,500\n5;11,250\n" : "0;12.500\n5;11.250\n";
  EXPECT_EQ(ReadText(own).TheSign().Doubtful, "");
  EXPECT_EQ(ReadText(own).Result().Points.front().Z.Value, 12.5);
  const std::string group = DecimalComma() ? "0;12.500\n5;11.250\n" : "0;12,500\n5;11,250\n";
  Import import = ReadText(group);
  const bool groups = GetParam().GroupSeparator == "." || GetParam().GroupSeparator == ",";
  EXPECT_EQ(import.TheSign().Doubtful, !groups ? "" : DecimalComma() ? "12.500" : "12,500");
  EXPECT_EQ(import.Result().Points.front().Z.Value, 12.5);
  import.ChooseSign(DecimalComma() ? Survey::DecimalComma : Survey::DecimalPoint);
  EXPECT_EQ(import.Result().Points.front().Z.Value, 12500);
  EXPECT_EQ(ReadText("0;12,500\n5;11,25\n").TheSign().Doubtful, "") << "one clear number settles the others";
  EXPECT_EQ(ReadText("0,12.500\n5,11.250\n").Result().Points.front().Z.Value, 12.5)
      << "its commas are separators";
}

TEST_P(SurveyFiles, ANThatIsNoneIsNamed) {
  Import import = ReadText("0,10,4.5\n5,4,\n10,10,\n");
  ASSERT_EQ(Listed(import.Result()), "strange");
  EXPECT_NE(import.Result().Changes[0].Text.find("line 1 has " + Spelled("4.5")), std::string::npos);
  EXPECT_TRUE(import.Result().LacksN);
  import.Switch(Kind::StrangeN, false);
  EXPECT_EQ(PointsOf(import.Result()) + import.Result().Reason, "0 10 4.5, 5 4, 10 10");
  const Import model = ReadText(
      "Type RM Length L Ch R = 1 ,1 ,,,\n#Sta/Elev= 2 \n       0       5      10       4\n"
      "#Mann= 1 , 0 , 0\n       0     3.5       0\n");
  ASSERT_EQ(Listed(model.Result()), "strange");
  EXPECT_NE(model.Result().Changes[0].Text.find("line 5 has " + Spelled("3.5")), std::string::npos);
}

TEST_P(SurveyFiles, EverySpellingOfTheSamePointsIsRead) {
  const char* const texts[] = {
      "0,10.5,0.03\n1234.5,8,\n",
      "0,10.5,0.03\r\n1234.5,8",
      "0;10,5;0,03\r1234,5;8;\r",
      "0\t10.5\t0.03\n\n1,234.5\t8\t\n",
      "\xEF\xBB\xBFStation;Elev, ft;n\n0; 10,5 ;0,03\n1.234,5;8\n;;\n",
      "\"Sta, ft\",\"Elev, ft\",n\n\"0\",10.5,0.03\n\"1,234.5\",8,,\n",
      "\"0\",\"10,5\",\"0,03\"\n\"1234,5\",\"8\"\n",
      "0;10,5;0,03\n1 234,5;8\n",
      "0;10,5;0,03\n1\u202F234,5;8\n",
      "0;10,5;0,03\n1\240234,5;8\n",  // Windows-1252
      "0,10.5,0.03\n1 234.5,8\n",
  };
  for (const char* const text : texts) {
    const Mended mended = ReadText(text).Result();
    EXPECT_EQ(PointsOf(mended) + mended.Reason, "0 10.5 0.03, 1234.5 8") << text;
    EXPECT_EQ(mended.Table[2][1], Spelled("1234.5")) << text;
  }
}

TEST_P(SurveyFiles, WhatIsExportedIsImportedTheSame) {
  IrregTable::Table table;
  table[1] = {"", "0", Spelled("1,609.344"), Spelled("0.125")};
  table[2] = {"", Spelled("1.234"), Spelled(" +10.50 "), ""};
  table[3] = {"", Spelled("2.345e2"), Spelled("-.5"), Spelled(".25")};
  const std::string text = PointsCsv::Format(table, "m", "Flumewise: a\nb");
  EXPECT_EQ(text, DecimalComma() ? "# Flumewise: a b\r\nStation (m);Elevation (m);n\r\n0;1609,3440;0,1250\r\n"
                                   "1,2340;+10,50;\r\n2,3450e2;-,5;,25\r\n"
                                 : "# Flumewise: a b\r\nStation (m),Elevation (m),n\r\n0,1609.344,0.125\r\n"
                                   "1.234,+10.50,\r\n2.345e2,-.5,.25\r\n");
  const NumberLocale readers[] = {{".", ","}, {",", "."}, {".", "'"}};
  for (const NumberLocale& reader : readers) {
    SetNumberLocale(reader);
    const Mended again = ReadText(text, 1).Result();
    EXPECT_EQ(PointsOf(again) + again.Reason, "0 1609.344 0.125, 1.234 10.5, 234.5 -0.5 0.25");
    EXPECT_TRUE(again.Changes.empty());
  }
}

TEST_P(SurveyFiles, EffectsAreThoseOfTheEngine) {
  const Import import = Read("repeated-n.csv");
  const auto flow = [](const std::vector<Point>& points, double W) {
    PointTable table;
    for (std::size_t i = 0; i < points.size(); ++i) {
      table[i + 1][1] = points[i].X.Value;
      table[i + 1][2] = points[i].Z.Value;
      if (points[i].N) table[i + 1][3] = points[i].N->Value;
    }
    return ManningIrreg::IrregFlow(table, static_cast<int>(points.size()), W, 1);
  };
  double largest = 0;
  for (int level = 1; level <= 10; ++level) {
    const double W = 4 + 0.6 * level;  // from the lowest point at 4 up to the highest at 10
    largest = std::min(largest, flow(import.Result().Points, W) / flow(import.Before(), W) - 1);
  }
  const Effect& effect = import.Result().Changes.at(0).Effects;
  EXPECT_LT(largest, -0.05) << "cut at each point it carried more";
  EXPECT_NEAR(effect.Flow.value(), largest, 1e-12);
  EXPECT_NEAR(effect.Area.value(), 0, 1e-12);
  const Import metres = Read("metres.csv");
  EXPECT_NEAR(metres.Result().Changes.at(0).Effects.Area.value(), 3.28084 * 3.28084 - 1, 1e-3);
}

TEST_P(SurveyFiles, ThinningKeepsWhatShapesTheSection) {
  const Import import = Read("many.csv");
  const Mended& mended = import.Result();
  EXPECT_EQ(mended.Reason, "");
  EXPECT_EQ(Listed(mended), "thin");
  EXPECT_EQ(IrregTable::PointCount(mended.Table), 100) << "no more are lost than must be";
  for (const double station : {0.0, 35.0, 60.0, 120.0}) {
    EXPECT_TRUE(std::ranges::any_of(mended.Points, [&](const Point& point) {
      return point.X.Value == station;
    })) << station;
  }
  // The V is 6 ft deep and its teeth 0.01 ft high: leaving out 21 of them hardly shows.
  EXPECT_LT(std::abs(mended.Changes[0].Effects.Area.value()), 0.05);
  EXPECT_TRUE(mended.Changes[0].Effects.Flow.has_value());
}

/// By hand: the triangles of the inner points have 2, 0.5 and 3 times half a unit; without the second the
/// first has (1,2)-(0,0)-(3,0): 3, and the third (3,0)-(0,0)... so that the first goes next only if it is not
/// kept.
TEST_P(SurveyFiles, TheLeastTriangleGoesFirst) {
  std::vector<Point> points;
  for (const auto& [x, z] : {std::pair(0.0, 0.0), {1, 2}, {2, 3.5}, {3, 0}, {4, 0}})
    points.push_back({{x, {}}, {z, {}}, std::nullopt, 0});
  std::vector<bool> keep = {true, false, false, false, true};
  Thin(points, keep, 4);
  ASSERT_EQ(points.size(), 4U);
  EXPECT_EQ(points[1].X.Value, 2) << "triangle areas 0.25, 2.5 and 1.75";
  keep = {true, false, false, true};
  Thin(points, keep, 3);
  EXPECT_EQ(points[1].X.Value, 2) << "now (0,0) (2,3.5) (3,0): 5.25; (2,3.5) (3,0) (4,0): 1.75";
}

TEST_P(SurveyFiles, WatchingCanEndTheWork) {
  std::string text = "0,1,0.03\n";
  for (int i = 1; i < 40000; ++i) text += std::to_string(i) + ",1,\n";
  EXPECT_THROW(Import(text, 0, [](double) { throw Cancelled(); }), Cancelled);
  std::vector<double> shares;
  const Import import(text, 0, [&](double share) { shares.push_back(share); });
  EXPECT_TRUE(std::ranges::is_sorted(shares));
  EXPECT_GT(shares.back(), 0.9) << "thinning is watched, too";
  EXPECT_THROW(Import(text, 0,
                      [](double share) {
                        if (share > 0.9) throw Cancelled();
                      }),
               Cancelled);
}

INSTANTIATE_LOCALES(SurveyFiles);

/// What the fuzzer of pasted and imported points has kept, and the surveys above.
TEST(PointsCorpus, NothingCrashesAndAcceptedPointsComeBack) {
  int imported = 0;
  for (const char* const folder : {CORPUS, DATA "/survey"}) {
    for (const auto& entry : std::filesystem::directory_iterator(folder)) {
      const std::string text = WholeFile::Read(entry.path().string());
      for (const NumberLocale& locale : PointsRoundTrip::Locales)
        EXPECT_TRUE(PointsRoundTrip::Holds(PointsRoundTrip::ImportHolds, text, locale) &&
                    PointsRoundTrip::Holds(PointsRoundTrip::PasteComesBack, text, locale))
            << entry.path();
      imported += PointsRoundTrip::ImportedOrNothing(text).has_value();
    }
  }
  EXPECT_GT(imported, 4);
}

}  // namespace
