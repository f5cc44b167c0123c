#pragma once

#include <deque>
#include <random>
#include <string>
#include <vector>

#include "core/Surroundings.h"
#include "doubles/MemoryFiles.h"
#include "doubles/YieldingBoxes.h"
#include "platform/RunTimeError.h"
#include "platform/TitleBar.h"

namespace karvenis {

/// A clock that shows what the test sets.
class SetClock final : public Clock {
 public:
  std::string today = "21.11.2026";
  std::string now = "12:34:56";
  std::int16_t minuteOfHour = 34;
  std::int64_t microseconds = 1'000'000;

  std::string date() override { return today; }
  std::string time() override { return now; }
  std::int16_t minute() override { return minuteOfHour; }
  std::int64_t sinceMidnight() override { return microseconds; }
};

/// Gives the scripted numbers first, then pseudo-random ones of 24 bits; keeps the seeds it got.
class ScriptedChance final : public Chance {
 public:
  std::deque<float> script;
  std::vector<std::int64_t> seeds;

  void seed(std::int64_t microseconds) override { seeds.push_back(microseconds); }
  float next() override {
    if (script.empty()) return static_cast<float>(generator_() >> 8U) / (1U << 24U);
    const float number = script.front();
    script.pop_front();
    return number;
  }

 private:
  std::mt19937 generator_{2005};
};

/// Keeps every caption.
class RecordingTitle final : public TitleBar {
 public:
  std::vector<std::string> captions;
  void setCaption(std::string_view caption) override { captions.emplace_back(caption); }
};

/// Keeps what was printed, one text for each line with its horizontal position; can refuse.
class RecordingPrinter final : public Printer {
 public:
  std::vector<std::string> log;
  bool refuses = false;

  void fontSize(double points) override { note("font " + number(points)); }
  void currentX(double twips) override { note("x " + number(twips)); }
  void currentY(double twips) override { note("y " + number(twips)); }
  void printLine(const std::string& text) override { note("line " + text); }
  void endDocument() override { note("end"); }
  void killDocument() noexcept override { killed = true; }
  bool killed = false;

 private:
  static std::string number(double value) { return std::to_string(static_cast<int>(value)); }
  void note(std::string entry) {
    if (refuses) throw RunTimeError(Fault::printer, "printer", "refuses");
    log.push_back(std::move(entry));
  }
};

/// Keeps the names of the windows that were asked for, and the words that were to be spoken.
class RecordingWindows final : public Windows {
 public:
  std::vector<std::string> shown;
  std::vector<std::string> announced;
  bool ended = false;
  void announce(std::string_view words) override { announced.emplace_back(words); }
  void show(std::string_view form) override { shown.emplace_back(form); }
  void end() override { ended = true; }
};

/// Everything outside, with boxes, files, chance and a title of the given kinds.
template <typename TheBoxes, typename TheFiles = MemoryFiles, typename TheChance = ScriptedChance,
          typename TheTitle = RecordingTitle>
struct WorldOf {
  SharedState state;
  TheBoxes boxes;
  SetClock clock;
  TheChance chance;
  TheFiles files;
  RecordingPrinter printer;
  RecordingWindows windows;
  TheTitle title;
  Surroundings around{state, boxes, clock, chance, files, printer, windows};

  /// The same over other files.
  Surroundings over(Files& other) { return {state, boxes, clock, chance, other, printer, windows}; }
};

/// A world that goes along with everything and needs no test framework.
using QuietWorld = WorldOf<YieldingBoxes>;

}  // namespace karvenis
