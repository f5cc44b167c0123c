#pragma once

#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <string>
#include <vector>

#include "doubles/Journal.h"
#include "platform/Boxes.h"

namespace karvenis {

/// Plays an ordered script of boxes, answers and beeps: what comes unexpected fails the test, and
/// so does what is left over at the end.
class ScriptedBoxes final : public Boxes, public Journaling {
 public:
  ~ScriptedBoxes() override { EXPECT_TRUE(finished()) << "never came: " << script_.front().told(); }

  ScriptedBoxes& expectBeep(int times = 1) {
    for (int i = 0; i < times; ++i) script_.push_back({.kind = "beep"});
    return *this;
  }
  ScriptedBoxes& expectMessage(std::string text, std::string title = standardTitle,
                               Icon icon = Icon::none) {
    script_.push_back({"message", std::move(text), std::move(title), icon, {}, {}});
    return *this;
  }
  ScriptedBoxes& expectWarning(std::string text, std::string title = standardTitle) {
    return expectBeep().expectMessage(std::move(text), std::move(title), Icon::exclamation);
  }
  ScriptedBoxes& expectQuestion(std::string text, bool answer, std::string title = standardTitle) {
    script_.push_back(
        {"question", std::move(text), std::move(title), Icon::question, answer ? "Yes" : "No", {}});
    return *this;
  }
  ScriptedBoxes& expectInput(std::string prompt, std::string title, std::string preset,
                             std::string answer, std::string example = {}) {
    script_.push_back({"input", std::move(prompt), std::move(title), Icon::none, std::move(answer),
                       std::move(preset), std::move(example)});
    return *this;
  }
  /// Whether all of the script has been played.
  bool finished() const { return script_.empty(); }

  void message(const std::string& text, const std::string& title, Icon icon) override {
    play({"message", text, title, icon, {}, {}});
  }
  bool ask(const std::string& text, const std::string& title) override {
    return play({"question", text, title, Icon::question, {}, {}}) == "Yes";
  }
  std::string input(const std::string& prompt, const std::string& title, const std::string& preset,
                    const std::string& example) override {
    return play({"input", prompt, title, Icon::none, {}, preset, example});
  }
  void beep() override { play({.kind = "beep"}); }
  void pointer(Pointer shape) override {
    note("pointer", shape == Pointer::hourglass ? "hourglass" : "normal");
  }

  /// Runs just before a scripted box is answered: what the world does while the box is open.
  std::function<void()> whileOpen;

 private:
  struct Step {
    std::string kind;
    std::string text{};
    std::string title{};
    Icon icon = Icon::none;
    std::string answer{};
    std::string preset{};
    std::string example{};

    std::string told() const {
      return kind + " [" + title + "] «" + text + "» preset «" + preset + "» example «" + example +
             "» icon " + std::to_string(static_cast<int>(icon));
    }
  };

  std::string play(const Step& came) {
    if (script_.empty()) {
      ADD_FAILURE() << "nothing was expected, but came: " << came.told();
      return {};
    }
    const Step expected = script_.front();
    script_.pop_front();
    EXPECT_EQ(came.told(), expected.told());
    if (shownTexts()) {
      for (const std::string& text : {came.title, came.preset, came.example}) shownTexts()(text);
    }
    note(came.kind, came.text + (expected.answer.empty() ? "" : " ") + expected.answer);
    if (whileOpen && came.kind != "beep") whileOpen();
    return expected.answer;
  }

  std::deque<Step> script_;
};

}  // namespace karvenis
