#pragma once

#include <stdlib.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

#include "doubles/QuietWorld.h"
#include "platform/SystemChance.h"
#include "platform/SystemFiles.h"

namespace karvenis {

/// Keeps the newest caption, as a window does.
class LastTitle final : public TitleBar {
 public:
  std::string caption;
  void setCaption(std::string_view text) override { caption = text; }
};

/// A fresh folder, current as long as this lives.
class OwnFolder {
 public:
  OwnFolder() {
    std::string name = (std::filesystem::temp_directory_path() / "karvenis-XXXXXX").string();
    folder_ = ::mkdtemp(name.data());
    std::filesystem::current_path(folder_);
  }
  ~OwnFolder() {
    std::filesystem::current_path("/");
    std::filesystem::remove_all(folder_);
  }
  OwnFolder(const OwnFolder&) = delete;
  OwnFolder& operator=(const OwnFolder&) = delete;

 private:
  std::filesystem::path folder_;
};

/// The rules' surroundings without a window system, on real files.
struct BenchWorld : OwnFolder, WorldOf<YieldingBoxes, SystemFiles, SystemChance, LastTitle> {};

template <typename Action>
double secondsOf(Action action) {
  const auto start = std::chrono::steady_clock::now();
  action();
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - start).count();
}

inline double median(std::vector<double> values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::nth_element(values.begin(), middle, values.end());
  return *middle;
}

}  // namespace karvenis
