#pragma once

#include <string>
#include <string_view>

#include "core/Surroundings.h"

namespace karvenis {

/// The banko window's options and boxes as its actions see them.
class BankoBoxes {
 public:
  virtual ~BankoBoxes() = default;
  /// The number of bankos that the selected option stands for, 0..5; 0 if none is selected.
  virtual int count() const = 0;
  /// Selects the option of `count` (0..5) and shows as many boxes.
  virtual void chooseCount(int count) = 0;
  /// `index` is 0..4.
  virtual std::string text(int index) const = 0;
  virtual void setText(int index, const std::string& text) = 0;
};

/// The caption over `count` boxes (0..5).
[[nodiscard]] const char* bankoCaption(int count);

/// What a box keeps of the text `typed` into it: the number that it begins with, without leading
/// zeros, or nothing if that is no ball (1..49). Only ASCII digits at the very start count.
[[nodiscard]] std::string bankoText(std::string_view typed);

/// Shows the bankos: selects the option of their number and writes them into the first boxes. A box
/// does not take a number that is no ball. The other boxes keep their text.
void ShowBankoSelection(const SharedState& state, BankoBoxes& boxes);

/// "Uygula": the numbers in the boxes become the bankos, each once; empty boxes do not count. The
/// bankos are removed from the bag and do not come back. Beeps.
void applyBanko(Surroundings& around, BankoBoxes& boxes);

/// "Seçimi Sil": removes all bankos. The boxes keep what they show, and no ball returns to the bag.
void clearBanko(SharedState& state);

/// "Yükle" of the banko window: asks, takes the bankos from the file, shows them and removes them
/// from the bag; warns if the file is broken. If the file is deleted while the question is open,
/// nothing changes. Throws RunTimeError(open, read).
void loadBankoInBankoWindow(Surroundings& around, BankoBoxes& boxes);

/// "Kayıtla": asks, applies, then writes the bankos to the file. The bag in the file stays; a new
/// file gets an empty bag. Throws RunTimeError(open, write).
void saveBanko(Surroundings& around, BankoBoxes& boxes);

}  // namespace karvenis
