// flumewise-console: the whole calculator without a screen, driven by lines of standard input.
#include <iostream>

#include "console/ConsoleStage.h"
#include "files/StandardStreams.h"

int main() {
  StandardStreams::KeepBytes();
  std::ios::sync_with_stdio(false);
  const auto read = []() -> std::optional<std::string> {
    std::string line;
    if (!std::getline(std::cin, line)) return std::nullopt;
    if (line.ends_with('\r')) line.pop_back();
    return line;
  };
  Console console(ControllerStage, read, [](const std::string& reply) {
    std::cout << reply << '\n' << std::flush;
  });
  console.Run();
}
