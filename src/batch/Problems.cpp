// See Problems.h.
#include "batch/Problems.h"

#include <algorithm>
#include <exception>
#include <stdexcept>

#include "app/main/ChannelTypes.h"
#include "app/main/frmMain.h"
#include "files/WholeFile.h"

namespace Batch {

using ProjectFile::Project;

namespace {

constexpr std::size_t Absent = static_cast<std::size_t>(-1);

bool IsProject(const std::string& path) {
  return path.ends_with(".fwd") || path.ends_with(".FWD");
}

bool IsKnown(const std::string& name) {
  return std::ranges::find(Columns(), name, &Column::Name) != Columns().end();
}

/// The mode is that of the quantity given, and the type holds some inputs at 0, as in the window.
void Complete(Project& project, bool modeGiven) {
  const auto typed = [&](TextBox frmMain::*box) -> std::string& {
    return project.Inputs.at(static_cast<std::size_t>(FieldOf(box).FileItem));
  };
  if (!modeGiven) project.SolveForFlow = typed(&frmMain::tbFlow).empty() && !typed(&frmMain::tbDepth).empty();
  const auto types = AllChannelTypes();
  const auto type = std::ranges::find(types, std::string_view(project.ChannelType), &ChannelType::Name);
  if (type == types.end()) return;
  for (const Field& field : Fields()) {
    if (type->UseOf(field) == Use::Zero) typed(field.Box) = "0";
  }
}

}  // namespace

/// A CSV file, and where each column to be taken stands in it.
struct Problems::Sheet {
  explicit Sheet(const std::string& path) : Rows(path) {
    for (const std::string& name : Rows.Head()) {
      if (!IsKnown(name)) throw std::runtime_error("no column is named \"" + name + "\"");
    }
    for (const Column& column : Columns()) {
      const auto at = std::ranges::find(Rows.Head(), column.Name);
      const bool taken = column.Take && at != Rows.Head().end();
      Places.push_back(taken ? static_cast<std::size_t>(at - Rows.Head().begin()) : Absent);
    }
    if (std::ranges::all_of(Places, [](std::size_t place) { return place == Absent; }))
      throw std::runtime_error("no column of it is an input");
  }

  Project At(std::size_t row) const {
    const std::vector<std::string> fields = Rows.FieldsOf(row);
    if (fields.size() > Rows.Head().size()) throw std::runtime_error("the row is longer than the head");
    Project project;
    bool fromFile = false;
    bool modeGiven = false;
    for (std::size_t i = 0; i < Places.size(); ++i) {
      if (Places[i] >= fields.size() || fields[Places[i]].empty()) continue;
      const Column& column = Columns()[i];
      column.Take(project, fields[Places[i]]);
      fromFile = fromFile || column.Name == "File";
      modeGiven = modeGiven || column.Name == "SolveForFlow";
    }
    if (!fromFile) Complete(project, modeGiven);
    return project;
  }

  Csv Rows;
  std::vector<std::size_t> Places;  // of each of Columns()
};

Problems::Problems(const std::vector<std::string>& files) {
  for (const std::string& path : files) {
    File file{path, count_, nullptr};
    if (!IsProject(path)) {
      try {
        file.Rows = std::make_shared<const Sheet>(path);
      } catch (const std::exception& failure) {
        throw std::runtime_error(path + ": " + WholeFile::ReasonOf(failure));
      }
    }
    count_ += file.Rows ? file.Rows->Rows.RowCount() : 1;
    files_.push_back(std::move(file));
  }
}

Answer Problems::At(std::size_t problem) const {
  const auto behind = std::ranges::upper_bound(files_, problem, {}, &File::First);
  const File& file = *(behind - 1);
  const std::size_t row = problem - file.First;
  Answer answer;
  answer.Source = file.Path;
  if (file.Rows) answer.Source += ":" + std::to_string(file.Rows->Rows.NumberOf(row));
  try {
    answer.Typed = file.Rows ? file.Rows->At(row) : ProjectFile::Read(file.Path);
    answer.Known = true;
  } catch (const std::exception& failure) {
    answer.Reason = WholeFile::ReasonOf(failure);
  }
  return answer;
}

}  // namespace Batch
