#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>

#include "faults/Actions.h"

namespace karvenis {

/// A fresh folder on the disk, current as long as this lives.
class DiskFolder {
 public:
  DiskFolder() : before_(std::filesystem::current_path()) {
    std::string name = (place() / "karvenis.XXXXXX").string();
    EXPECT_NE(::mkdtemp(name.data()), nullptr);
    folder_ = name;
    std::filesystem::current_path(folder_);
  }
  ~DiskFolder() {
    std::filesystem::current_path(before_);
    std::filesystem::remove_all(folder_);
  }
  DiskFolder(const DiskFolder&) = delete;
  DiskFolder& operator=(const DiskFolder&) = delete;

  const std::filesystem::path& path() const { return folder_; }

  void fill(const Folder& content) {
    for (const auto& entry : std::filesystem::directory_iterator(folder_)) {
      std::filesystem::remove_all(entry);
    }
    for (const auto& [name, bytes] : content) put(name, bytes);
  }
  void put(const std::string& name, const Bytes& bytes) {
    std::ofstream(folder_ / name, std::ios::binary)
        .write(reinterpret_cast<const char*>(bytes.data()),
               static_cast<std::streamsize>(bytes.size()));
  }
  Bytes bytes(const std::string& name) const {
    Bytes all(std::filesystem::file_size(folder_ / name));
    std::ifstream(folder_ / name, std::ios::binary)
        .read(reinterpret_cast<char*>(all.data()), static_cast<std::streamsize>(all.size()));
    return all;
  }
  /// Every regular file in it.
  Folder content() const {
    Folder all;
    for (const auto& entry : std::filesystem::directory_iterator(folder_)) {
      const std::string name = entry.path().filename().string();
      if (entry.is_regular_file()) all[name] = bytes(name);
    }
    return all;
  }

 private:
  /// Where TMPDIR says, else in memory if the system offers that: syncs are many here and cost
  /// nothing there.
  static std::filesystem::path place() {
    const std::filesystem::path memory = "/dev/shm";
    const bool inMemory = std::getenv("TMPDIR") == nullptr && ::access(memory.c_str(), W_OK) == 0;
    return inMemory ? memory : std::filesystem::temp_directory_path();
  }

  std::filesystem::path before_, folder_;
};

/// How often a test repeats what it does at random: `usually`, or the number in the environment
/// variable KARVENIS_ROUNDS.
inline int rounds(int usually) {
  const char* wanted = std::getenv("KARVENIS_ROUNDS");
  return wanted == nullptr ? usually : std::max(1, std::atoi(wanted));
}

}  // namespace karvenis
