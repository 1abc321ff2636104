// Another program at work, its standard output read by this one.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

class ChildProgram {
 public:
  /// Starts a program, found as a shell finds it; its standard input and error are those of this one.
  /// std::system_error when it cannot be started.
  explicit ChildProgram(const std::vector<std::string>& command);
  ChildProgram(ChildProgram&& other) noexcept;
  ChildProgram& operator=(ChildProgram&&) = delete;
  ~ChildProgram();

  struct Ending {
    std::string Output;
    int Status;  ///< negative: it was ended from outside
  };
  /// Reads its output until it ends. To be called once.
  Ending Wait();

 private:
  std::intptr_t process_ = -1, output_ = -1;
};
