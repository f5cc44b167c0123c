#pragma once

#include <string>

#include "platform/Boxes.h"

namespace karvenis {

/// Goes along with everything: for tests that are not about the boxes.
class YieldingBoxes final : public Boxes {
 public:
  std::string typed;     ///< what every input box is answered with
  bool says = true;      ///< what every question is answered with
  std::string question;  ///< the last question

  void message(const std::string&, const std::string&, Icon) override {}
  bool ask(const std::string& text, const std::string&) override {
    question = text;
    return says;
  }
  std::string input(const std::string&, const std::string&, const std::string&,
                    const std::string&) override {
    return typed;
  }
  void beep() override {}
  void pointer(Pointer) override {}
};

}  // namespace karvenis
