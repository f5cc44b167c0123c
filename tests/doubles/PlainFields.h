#pragma once

#include <array>
#include <string>

#include "bag/BankoActions.h"

namespace karvenis {

/// Fields without a window, with the filter that the window gives them.
class PlainFields final : public BankoFields {
 public:
  using Texts = std::array<std::string, mostBankos>;

  int chosen = 0;
  Texts texts;

  int count() const override { return chosen; }
  void chooseCount(int count) override { chosen = count; }
  std::string text(int index) const override { return texts.at(static_cast<std::size_t>(index)); }
  void setText(int index, const std::string& text) override {
    texts.at(static_cast<std::size_t>(index)) = bankoText(text);
  }
};

}  // namespace karvenis
