// The problems that the files of a command line pose, numbered in their order.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "batch/Columns.h"
#include "batch/Csv.h"

namespace Batch {

class Problems {
 public:
  /// A file whose name ends in .fwd is a project and read when it is asked for; any other is a CSV file, a
  /// problem a row. std::runtime_error, with the name of the file, for a CSV file that cannot be read or that
  /// has a head of no known name.
  explicit Problems(const std::vector<std::string>& files);

  std::size_t Count() const { return count_; }
  /// A problem, its answer still open. One that cannot be read is not known and has its reason.
  Answer At(std::size_t problem) const;

 private:
  struct Sheet;
  struct File {
    std::string Path;
    std::size_t First;                  // problem
    std::shared_ptr<const Sheet> Rows;  // null: a project
  };
  std::vector<File> files_;
  std::size_t count_ = 0;
};

}  // namespace Batch
