// See ChildProgram.h.
#include "files/ChildProgram.h"

#include <windows.h>

#include <array>
#include <utility>

#include "files/OpenFile.h"
#include "files/PathText.h"

namespace {

HANDLE HandleOf(std::intptr_t number) {
  return reinterpret_cast<HANDLE>(number);  // NOLINT(performance-no-int-to-ptr)
}

/// A word of a command line, which programs take apart again: in quotes, with a backslash before each quote
/// and before each backslash that stands before a quote.
std::string Quoted(const std::string& word) {
  std::string quoted = "\"";
  std::size_t backslashes = 0;
  for (const char c : word) {
    if (c == '"') quoted.append(backslashes + 1, '\\');
    backslashes = c == '\\' ? backslashes + 1 : 0;
    quoted += c;
  }
  return quoted.append(backslashes, '\\') + "\" ";
}

}  // namespace

ChildProgram::ChildProgram(const std::vector<std::string>& command) {
  std::string words;
  for (const std::string& word : command) words += Quoted(word);
  std::wstring line = PathOf(words).wstring();
  // The program inherits what can be inherited: its own end of the pipe alone.
  SECURITY_ATTRIBUTES inherited{sizeof inherited, nullptr, TRUE};
  HANDLE ours = nullptr;
  HANDLE its = nullptr;
  if (!CreatePipe(&ours, &its, &inherited, 0)) FailStep("make a pipe");
  SetHandleInformation(ours, HANDLE_FLAG_INHERIT, 0);
  STARTUPINFOW start{};
  start.cb = sizeof start;
  start.dwFlags = STARTF_USESTDHANDLES;
  start.hStdInput = GetStdHandle(STD_INPUT_HANDLE);
  start.hStdOutput = its;
  start.hStdError = GetStdHandle(STD_ERROR_HANDLE);
  PROCESS_INFORMATION started{};
  const bool runs = CreateProcessW(nullptr, line.data(), nullptr, nullptr, TRUE, 0, nullptr, nullptr, &start,
                                   &started) != FALSE;
  const DWORD failure = GetLastError();
  CloseHandle(its);
  if (!runs) {
    CloseHandle(ours);
    SetLastError(failure);
    FailStep("start a program");
  }
  CloseHandle(started.hThread);
  process_ = reinterpret_cast<std::intptr_t>(started.hProcess);
  output_ = reinterpret_cast<std::intptr_t>(ours);
}

ChildProgram::ChildProgram(ChildProgram&& other) noexcept
    : process_(std::exchange(other.process_, -1)), output_(std::exchange(other.output_, -1)) {}

ChildProgram::~ChildProgram() {
  if (output_ != -1) CloseHandle(HandleOf(output_));
  if (process_ == -1) return;
  WaitForSingleObject(HandleOf(process_), INFINITE);
  CloseHandle(HandleOf(process_));
}

ChildProgram::Ending ChildProgram::Wait() {
  Ending ending;
  std::array<char, 1 << 16> part{};
  DWORD count = 0;
  while (ReadFile(HandleOf(output_), part.data(), part.size(), &count, nullptr))
    ending.Output.append(part.data(), count);
  if (GetLastError() != ERROR_BROKEN_PIPE) FailStep("read");
  DWORD status = 0;
  WaitForSingleObject(HandleOf(process_), INFINITE);
  GetExitCodeProcess(HandleOf(process_), &status);
  ending.Status = static_cast<int>(status);  // a fault of the program is a number above the greatest int
  return ending;
}
