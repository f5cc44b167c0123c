#pragma once

#include <string>
#include <vector>

#include "platform/TextSurface.h"

namespace karvenis {

/// Keeps what is printed. Every character is `charWidth` twips wide and every line 300 high.
class RecordingSurface final : public TextSurface {
 public:
  struct Run {
    double x, y;
    QBColor colour;
    std::string text;
    bool operator==(const Run&) const = default;
  };
  std::vector<Run> runs;
  int cleared = 0;
  double charWidth = 100;
  int percent = 100;  ///< of its width that each character has

  /// The texts of the lines, each run behind the other.
  std::vector<std::string> lines() const {
    std::vector<std::string> all;
    for (std::size_t i = 0; i < runs.size(); ++i) {
      if (i == 0 || runs[i].y != runs[i - 1].y) all.emplace_back();
      all.back() += runs[i].text;
    }
    return all;
  }

  void cls() override {
    runs.clear();
    ++cleared;
    x_ = y_ = 0;
  }
  double currentX() const override { return x_; }
  void currentX(double twips) override { x_ = twips; }
  void currentY(double twips) override { y_ = twips; }
  void foreColor(QBColor colour) override { colour_ = colour; }
  void letterWidth(int width) override { percent = width; }
  void print(const std::string& text) override {
    runs.push_back({x_, y_, colour_, text});
    x_ += charWidth * percent / 100 * static_cast<double>(text.size());
  }
  void printLine(const std::string& text) override {
    if (!text.empty()) print(text);
    x_ = 0;
    y_ += 300;
  }

 private:
  double x_ = 0;
  double y_ = 0;
  QBColor colour_ = QBColor::blue;
};

}  // namespace karvenis
