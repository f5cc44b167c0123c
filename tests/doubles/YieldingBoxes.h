#pragma once

#include <string>

#include "doubles/Journal.h"
#include "platform/Boxes.h"

namespace karvenis {

/// Goes along with everything: for tests that are not about the boxes.
class YieldingBoxes final : public Boxes, public Journaling {
 public:
  std::string typed;     ///< what every input box is answered with
  bool says = true;      ///< what every question is answered with
  std::string question;  ///< the last question

  void message(const std::string& text, const std::string&, Icon) override {
    note("message", text);
  }
  bool ask(const std::string& text, const std::string&) override {
    note("question", text);
    question = text;
    return says;
  }
  std::string input(const std::string& prompt, const std::string&, const std::string&,
                    const std::string&) override {
    note("input", prompt);
    return typed;
  }
  void beep() override { note("beep"); }
  void pointer(Pointer) override {}
};

}  // namespace karvenis
