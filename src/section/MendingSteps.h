// The single steps of mending; Mending.cpp runs them in their order.
#pragma once

#include "section/Mending.h"

namespace Survey {

struct Found {
  Section After;
  std::string Text;
};

// Each returns the section after its step and the sentences that describe it, or nothing where there is
// nothing to do.

// Lengths.
std::optional<Found> FindWidthFactor(const Section& section, const Terms& terms);
std::optional<Found> FindOffset(const Section& section, const Terms& terms);
std::optional<Found> FindConversion(const Section& section, const Terms& terms);

// The ground line.
std::optional<Found> FindOrder(const Section& section, const Terms& terms);
/// std::runtime_error naming the line where a station lies before the last one: then there is no ground line.
std::optional<Found> FindDuplicates(const Section& section, const Terms& terms);
/// The lowest point of a wall stays where it is, so that the water does not gain or lose width at its bottom;
/// the points above it are moved away from the water by the last decimal of the table, or less where others
/// are near.
std::optional<Found> FindWalls(const Section& section, const Terms& terms);
/// std::runtime_error where more points than the table holds have to be kept.
std::optional<Found> FindThinning(const Section& section, const Terms& terms);

// Roughness.
std::optional<Found> FindStrangeN(const Section& section, const Terms& terms);
std::optional<Found> FindBreaks(const Section& section, const Terms& terms);
/// Without new points each n begins at the next point.
void BreaksAtPoints(Section& section);
std::optional<Found> FindRepeatedN(const Section& section, const Terms& terms);
std::optional<Found> FindFrontN(const Section& section, const Terms& terms);

/// A computed length with as many decimals as matter; its digits are no longer those of the file.
Number Length(double value);

}  // namespace Survey
