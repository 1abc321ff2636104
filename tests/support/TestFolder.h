// A folder of its own for each test: tests run side by side.
#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>

/// The whole file; nothing where there is none.
inline std::string BytesOf(const std::filesystem::path& path) {
  std::ifstream file(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(file), {}};
}

/// Empty when made, gone with the object.
class TestFolder {
 public:
  TestFolder() {
    std::random_device random;
    do path_ = std::filesystem::temp_directory_path() / ("flumewise-" + std::to_string(random()));
    while (!std::filesystem::create_directory(path_));
  }
  ~TestFolder() {
    std::error_code error;
    std::filesystem::remove_all(path_, error);
  }
  TestFolder(const TestFolder&) = delete;
  TestFolder& operator=(const TestFolder&) = delete;

  const std::filesystem::path& Path() const { return path_; }

 private:
  std::filesystem::path path_;
};
