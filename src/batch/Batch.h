// The batch program: problems in, one sheet out.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace Batch {

/// Exit statuses.
inline constexpr int AllSolved = 0, SomeBlank = 1, Unusable = 2;

/// Takes a part of the sheet; std::runtime_error when it cannot be written.
using Sink = std::function<void(std::string_view)>;

/// Does what the arguments say and returns the exit status. `program` is the name by which this program can
/// be started again. std::exception, with what is wrong, when nothing or not all could be done.
int Run(const std::string& program, const std::vector<std::string>& arguments, const Sink& write);

}  // namespace Batch
