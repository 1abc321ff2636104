// Writes the working, theme by theme; see Working.h.
#pragma once

#include <functional>
#include <initializer_list>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "app/main/ChannelTypes.h"
#include "app/main/frmMain.h"
#include "engine/ChannelState.h"
#include "notes/Findings.h"
#include "working/Equation.h"

/// Water at one depth, in feet.
struct WaterBelow {
  double A, P, T;
};

/// A search as the engine makes it, with what it tried.
struct SearchTrace {
  double From, To;  ///< the interval searched, From with the lower value
  int Steps = 0;
  double Low, High;  ///< the last bracket
  double Found;      ///< the last midpoint tried
};

class WorkingWriter {
 public:
  explicit WorkingWriter(const frmMain& main);
  WorkingLines Write();

 private:
  // WorkingGiven.cpp
  void Given();
  void Constants();

  // WorkingFlow.cpp
  void UniformFlow();
  void SubsectionTable();
  void DepthSearch();
  void FlowSearch(double from, double to, const std::string& symbol);
  void CriticalFlow();
  void AddDiameter();
  /// Hydraulic radius and flow.
  void AddManning(const ShownNumbers& numbers, const std::string& index = "");
  void SetGeometry(double y, ShownNumbers& numbers) const;
  void AddGeometry(const ShownNumbers& numbers, const std::string& index = "");
  void Search(const SearchTrace& trace, const std::string& depth, const std::string& target);
  void Residual(const std::string& difference, double carried, double wanted, double carriedAbove,
                UnitKind unit);

  // WorkingMore.cpp
  void OtherDepths();
  void PipeCapacity();
  void SecondDepth();
  void WaterLevels(const char* what, const LevelSearch& found, std::optional<std::size_t> shown,
                   const std::string& quantity, UnitKind unit, const std::function<double(double)>& inUnits);
  void MoreResults();
  void AlternateDepth();
  void WhatIf();
  void Notes();

  static bool IsPipe() { return CurrentChannelType().Is == Shape::Pipe; }
  static bool IsSection() { return CurrentChannelType().IsSurveyed(); }
  bool IsFull() const { return found_.Pipe && found_.Pipe->Full; }
  /// Water below a depth or a water level (ft), and the flow (ft^3/s) it carries.
  WaterBelow Water(double y) const;
  double Carried(double y) const;
  double SectionFactorAt(double y) const;
  double InSectionFactorUnits(double Z) const;
  SearchTrace Trace(double from, double to, double target, const std::function<double(double)>& curve) const;
  /// Depth of the water (ft): of a surveyed section above its lowest point.
  double Depth() const { return found_.Depth - low_; }

  double InUnits(double value, int quantity) const;
  std::string Fine(double feet, int moreDecimals = 0) const;  ///< with the decimals of 1e-6 ft and its unit
  std::string FineNumber(double feet, int moreDecimals = 0) const;
  std::string WithUnit(double value, UnitKind unit) const;  ///< five digits, from units shown
  void Heading(const std::string& text) { lines_.push_back({WorkingLine::Kind::Heading, {text}}); }
  void Say(const std::string& text) { lines_.push_back({WorkingLine::Kind::Sentence, {text}}); }
  void State(std::vector<std::string> parts) {
    lines_.push_back({WorkingLine::Kind::Fact, std::move(parts)});
  }
  void Result(std::vector<std::string> parts) {
    lines_.push_back({WorkingLine::Kind::Result, std::move(parts)});
  }
  void Heads(std::vector<std::string> cells) {
    lines_.push_back({WorkingLine::Kind::Head, std::move(cells)});
  }
  void Row(std::vector<std::string> cells) { lines_.push_back({WorkingLine::Kind::Row, std::move(cells)}); }
  void Add(std::initializer_list<Equation> equations, const ShownNumbers& numbers,
           const std::string& index = "") {
    for (const Equation& equation : equations) AddEquation(lines_, equation, numbers, index);
  }

  const frmMain& main_;
  const ChannelRecord& record_;
  const Findings& found_;
  const bool metric_;
  WorkingLines lines_;
  ShownNumbers numbers_;  // of the solved problem
  double low_ = 0;        // lowest elevation of a surveyed section, else 0 (ft)
};
