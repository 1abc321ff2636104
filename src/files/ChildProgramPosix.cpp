// See ChildProgram.h.
#include "files/ChildProgram.h"

#include <fcntl.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <system_error>
#include <utility>

#include "files/OpenFile.h"

extern char** environ;  // NOLINT(readability-redundant-declaration): not every system declares it

ChildProgram::ChildProgram(const std::vector<std::string>& command) {
  std::array<int, 2> ends{};
  if (pipe(ends.data()) != 0) FailStep("make a pipe");
  for (const int end : ends) fcntl(end, F_SETFD, FD_CLOEXEC);
  std::vector<char*> words;
  for (const std::string& word : command) words.push_back(const_cast<char*>(word.c_str()));  // NOLINT
  words.push_back(nullptr);
  posix_spawn_file_actions_t actions{};
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_adddup2(&actions, ends[1], STDOUT_FILENO);
  pid_t process = -1;
  const int failure = posix_spawnp(&process, words[0], &actions, nullptr, words.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  close(ends[1]);
  if (failure != 0) {
    close(ends[0]);
    throw std::system_error(failure, std::generic_category(), "start a program");
  }
  process_ = process;
  output_ = ends[0];
}

ChildProgram::ChildProgram(ChildProgram&& other) noexcept
    : process_(std::exchange(other.process_, -1)), output_(std::exchange(other.output_, -1)) {}

ChildProgram::~ChildProgram() {
  if (output_ >= 0) close(static_cast<int>(output_));
  if (process_ >= 0) waitpid(static_cast<pid_t>(process_), nullptr, 0);
}

ChildProgram::Ending ChildProgram::Wait() {
  Ending ending;
  std::array<char, 1 << 16> part{};
  for (;;) {
    const ssize_t count = read(static_cast<int>(output_), part.data(), part.size());
    if (count == 0) break;
    if (count < 0 && errno != EINTR) FailStep("read");
    if (count > 0) ending.Output.append(part.data(), static_cast<std::size_t>(count));
  }
  int status = 0;
  while (waitpid(static_cast<pid_t>(process_), &status, 0) < 0 && errno == EINTR) {
  }
  process_ = -1;
  ending.Status = WIFEXITED(status) ? WEXITSTATUS(status) : -1;
  return ending;
}
