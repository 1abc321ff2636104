// The words of a line to the console, and refusing one.
#pragma once

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

/// A line that cannot be obeyed; the reply says why.
class Refusal : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

using Words = std::vector<std::string>;

/// \t, \r, \n and \\ for TAB, CR, LF and the backslash itself, read and written.
std::string Unescaped(std::string_view text);
std::string Escaped(std::string_view text);

/// Refuses a word that is no whole number.
int Whole(const std::string& word);
