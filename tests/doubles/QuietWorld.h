#pragma once

#include <deque>
#include <random>
#include <string>
#include <type_traits>
#include <vector>

#include "core/Surroundings.h"
#include "doubles/Journal.h"
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

/// Gives the scripted numbers first, then pseudo-random ones of 24 bits; a seed changes nothing.
class ScriptedChance final : public Chance, public Journaling {
 public:
  std::deque<float> script;

  void seed(std::int64_t microseconds) override { note("seed", std::to_string(microseconds)); }
  float next() override {
    note("number");
    if (script.empty()) return static_cast<float>(generator_() >> 8U) / (1U << 24U);
    const float number = script.front();
    script.pop_front();
    return number;
  }

 private:
  std::mt19937 generator_{2005};
};

/// Tells every caption to the journal.
class RecordingTitle final : public TitleBar, public Journaling {
 public:
  void setCaption(std::string_view caption) override { note("title", caption); }
};

/// Tells the journal what is printed; can refuse.
class RecordingPrinter final : public Printer, public Journaling {
 public:
  bool refuses = false;
  bool killed = false;

  void fontSize(double points) override { take("font " + number(points)); }
  void currentX(double twips) override { take("x " + number(twips)); }
  void currentY(double twips) override { take("y " + number(twips)); }
  void printLine(const std::string& text) override { take("line " + text); }
  void endDocument() override { take("end"); }
  void killDocument() noexcept override { killed = true; }

 private:
  static std::string number(double value) { return std::to_string(static_cast<int>(value)); }
  void take(const std::string& told) const {
    if (refuses) throw RunTimeError(Fault::printer, "printer", "refuses");
    note("printer", told);
  }
};

/// Keeps the words that were to be spoken; tells the journal which windows were asked for.
class RecordingWindows final : public Windows, public Journaling {
 public:
  std::vector<std::string> announced;
  int drops = 0;  // how often input was dropped
  bool ended = false;
  void dropInput() override { ++drops; }
  void announce(std::string_view words) override {
    announced.emplace_back(words);
    if (shownTexts()) shownTexts()(words);
  }
  void show(std::string_view form) override { note("show", form); }
  void end() override { ended = true; }
};

/// Everything outside, with boxes, files, chance and a title of the given kinds.
template <typename TheBoxes, typename TheFiles = MemoryFiles, typename TheChance = ScriptedChance,
          typename TheTitle = RecordingTitle>
struct WorldOf {
  Journal journal;
  SharedState state;
  TheBoxes boxes;
  SetClock clock;
  TheChance chance;
  TheFiles files;
  RecordingPrinter printer;
  RecordingWindows windows;
  TheTitle title;
  Surroundings around{state, boxes, clock, chance, files, printer, windows};

  WorldOf() { connectAll(boxes, chance, files, printer, windows, title); }
  std::vector<std::string> captions() const { return journal.of("title"); }
  std::vector<std::string> shown() const { return journal.of("show"); }
  std::vector<std::string> printed() const { return journal.of("printer"); }

  /// The same over other files.
  Surroundings over(Files& other) { return {state, boxes, clock, chance, other, printer, windows}; }

 private:
  template <typename Double>
  void connect(Double& one) {
    if constexpr (std::is_base_of_v<Journaling, Double>) one.journal = &journal;
  }
  void connectAll(auto&... doubles) { (connect(doubles), ...); }
};

/// A world that goes along with everything and needs no test framework.
using QuietWorld = WorldOf<YieldingBoxes>;

}  // namespace karvenis
