#ifndef ZQ7STANDARD_BENCH_REGISTRY_INPUTS_H_
#define ZQ7STANDARD_BENCH_REGISTRY_INPUTS_H_

#include <ZQ7Standard/Types.h>

#include <filesystem>
#include <string>
#include <vector>

namespace ZQ7Standard::Bench {

/// The place of a value, also in lower case, which a program that queries the database itself would
/// have prepared.
struct Entry {
  Text path;
  Text name;
  std::string folded_path;
  std::string folded_name;
};

/// 64 values in each of 16 keys, in random order.
const std::vector<Entry>& Entries();

/// A folder on the disk for the databases, removed when the program ends.
const std::filesystem::path& DatabaseFolder();

}  // namespace ZQ7Standard::Bench

#endif  // ZQ7STANDARD_BENCH_REGISTRY_INPUTS_H_
