// How the notes on an answer spell numbers: in the unit system and with the digits in force.
#pragma once

#include "notes/Notes.h"

class NoteSpelling : public Spelling {
 public:
  std::string Length(double feet) const override;
  std::string Flow(double cfs) const override;
  std::string Number(double x) const override;
  double LastPlace(Cell quantity, double value) const override;
};
