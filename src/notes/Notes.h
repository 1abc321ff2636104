// The notes on an answer: what a careful reviewer would say of it, in words. One table holds them all.
#pragma once

#include <string>
#include <vector>

#include "notes/Findings.h"

/// How numbers are spelled: in the unit system and with the digits in force.
class Spelling {
 public:
  virtual ~Spelling() = default;
  /// A depth, elevation or station (ft), with its unit.
  virtual std::string Length(double feet) const = 0;
  /// A flow (ft^3/s), with its unit.
  virtual std::string Flow(double cfs) const = 0;
  /// A number without a unit, with the digits that read well in a sentence.
  virtual std::string Number(double x) const = 0;
  /// One unit of the last digit shown of a value, itself in the units of the record. Value: not 0.
  virtual double LastPlace(Cell quantity, double value) const = 0;
};

struct Note {
  std::vector<Cell> Concerns;  ///< the quantities whose boxes it is about; none: the points
  std::string Phrase;          ///< its words in the verdict; empty when the verdict only counts it
  std::string Short;           ///< one sentence without its full stop
  std::string Long;  ///< sentences that go on from there, with the formula; indices marked ("Q_max")
  std::string Source;
};

/// The notes that hold, in the order of the table; none when nothing is solved.
std::vector<Note> NotesOn(const Findings& found, const Spelling& spelling);

/// "Depth solved: subcritical, 70 % deep, 78 % of the greatest flow": the notes that have a phrase.
std::string Verdict(const Findings& found, const std::vector<Note>& notes);

/// "2 notes": those that the verdict only counts; empty when there are none.
std::string NoteCount(const std::vector<Note>& notes);
