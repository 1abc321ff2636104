# What every target is compiled with: the numbers are IEEE doubles in exactly the order written.
add_library(flumewise_flags INTERFACE)
target_compile_features(flumewise_flags INTERFACE cxx_std_20)
target_compile_options(flumewise_flags INTERFACE
  -Wall -Wextra -Wpedantic -Wconversion -Wshadow -Werror -ffp-contract=off -fno-fast-math)
# g++ 12 takes sums of std::string for overlapping copies.
target_compile_options(flumewise_flags INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-restrict>)
target_include_directories(flumewise_flags INTERFACE
  ${PROJECT_SOURCE_DIR}/src ${PROJECT_BINARY_DIR}/generated)
set(CMAKE_CXX_EXTENSIONS OFF)

if(FLUMEWISE_SANITIZE)
  # With its checks in between, g++ 12 loses sight of what a std::variant holds.
  target_compile_options(flumewise_flags INTERFACE $<$<CXX_COMPILER_ID:GNU>:-Wno-maybe-uninitialized>)
  add_compile_options(-fsanitize=address,undefined -fno-sanitize-recover=all -fno-omit-frame-pointer)
  add_link_options(-fsanitize=address,undefined)
endif()
if(FLUMEWISE_COVERAGE)
  add_compile_options(--coverage)
  add_link_options(--coverage)
endif()
