// A channel problem on its way from texts into the record: typed into the main window, or read from a file
// that no window shows.
#pragma once

#include <functional>
#include <string>

#include "app/main/Fields.h"
#include "app/project/ProjectFile.h"

namespace Problem {

/// The text of an input or a result in a project; null where a project keeps none.
std::string* ItemOf(ProjectFile::Project& project, const Field& field);

/// Takes channel type, mode, unit system, digits and points of a project into the record, in place of all
/// that was there. Its inputs stay texts.
void TakeSetting(const ProjectFile::Project& project);

/// What is wrong with the channel type or the current points; empty when nothing is.
std::string OffenceOfSection();

/// What is wrong with the text of an input; empty when nothing is or nobody asks for it.
std::string OffenceOf(const Field& field, const std::string& typed);

/// Copies the inputs and the points as typed into the record, in feet and seconds.
void TakeInputs(const std::function<const std::string&(const Field&)>& typed);

}  // namespace Problem
