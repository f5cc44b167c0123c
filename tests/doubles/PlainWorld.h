#pragma once

#include <random>
#include <string>

#include "core/Surroundings.h"
#include "doubles/MemoryFiles.h"
#include "doubles/YieldingBoxes.h"
#include "platform/TitleBar.h"

namespace karvenis {

/// Everything outside, without a test framework: says Yes to all and keeps its files in memory.
struct PlainWorld {
  struct StillClock final : Clock {
    std::string date() override { return "21.11.2026"; }
    std::string time() override { return "12:34:56"; }
    std::int16_t minute() override { return 34; }
    std::int64_t sinceMidnight() override { return 1'000'000; }
  };
  struct PlainChance final : Chance {
    std::mt19937 generator{2005};
    void seed(std::int64_t) override {}
    float next() override { return static_cast<float>(generator() >> 8U) / (1U << 24U); }
  };
  struct NoPrinter final : Printer {
    void fontSize(double) override {}
    void currentX(double) override {}
    void currentY(double) override {}
    void printLine(const std::string&) override {}
    void endDocument() override {}
    void killDocument() noexcept override {}
  };
  struct NoWindows final : Windows {
    void show(std::string_view) override {}
    void end() override {}
  };
  struct NoTitle final : TitleBar {
    void setCaption(std::string_view) override {}
  };

  MemoryFiles files;
  SharedState state;
  YieldingBoxes boxes;
  StillClock clock;
  PlainChance chance;
  NoPrinter printer;
  NoWindows windows;
  NoTitle title;
  Surroundings around{state, boxes, clock, chance, files, printer, windows};
};

}  // namespace karvenis
