#pragma once

#include <stdlib.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <filesystem>
#include <string>
#include <vector>

#include "core/Surroundings.h"
#include "platform/SystemChance.h"
#include "platform/SystemFiles.h"
#include "platform/TitleBar.h"

namespace karvenis {

/// Boxes that answer at once: Yes, and what was to be typed.
class QuietBoxes final : public Boxes {
 public:
  std::string typed;
  void message(const std::string&, const std::string&, Icon) override {}
  bool ask(const std::string&, const std::string&) override { return true; }
  std::string input(const std::string&, const std::string&, const std::string&) override {
    return typed;
  }
  void beep() override {}
  void pointer(Pointer) override {}
};

/// Keeps the newest caption, as a window does.
class LastTitle final : public TitleBar {
 public:
  std::string caption;
  void setCaption(std::string_view text) override { caption = text; }
};

class NoonClock final : public Clock {
 public:
  std::string date() override { return "21.11.2026"; }
  std::string time() override { return "12:00:00"; }
  std::int16_t minute() override { return 0; }
  std::int64_t sinceMidnight() override { return 43'200'000'000; }
};

class NoPrinter final : public Printer {
 public:
  void fontSize(double) override {}
  void currentX(double) override {}
  void currentY(double) override {}
  void printLine(const std::string&) override {}
  void endDocument() override {}
  void killDocument() noexcept override {}
};

class NoWindows final : public Windows {
 public:
  void show(std::string_view) override {}
  void end() override {}
};

/// The rules' surroundings without a window system, on real files in a folder of their own that
/// goes with it.
struct QuietWorld {
  SharedState state;
  QuietBoxes boxes;
  NoonClock clock;
  SystemChance chance;
  SystemFiles files;
  NoPrinter printer;
  NoWindows windows;
  LastTitle title;
  Surroundings around{state, boxes, clock, chance, files, printer, windows};

  QuietWorld() {
    std::string name = (std::filesystem::temp_directory_path() / "karvenis-XXXXXX").string();
    folder_ = ::mkdtemp(name.data());
    std::filesystem::current_path(folder_);
  }
  ~QuietWorld() {
    std::filesystem::current_path("/");
    std::filesystem::remove_all(folder_);
  }
  QuietWorld(const QuietWorld&) = delete;
  QuietWorld& operator=(const QuietWorld&) = delete;

 private:
  std::filesystem::path folder_;
};

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
