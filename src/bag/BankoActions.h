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

/// What a box keeps of a text: the number that `typed` begins with, plainly written, or nothing if
/// that is no ball (1..49). Only ASCII digits count, and only at the very start.
[[nodiscard]] std::string bankoText(std::string_view typed);

/// Shows the bankos: selects how many there are and writes them into the boxes, which clear what is
/// no ball. The other boxes keep their text.
void ShowBankoSelection(const SharedState& state, BankoBoxes& boxes);

/// "Uygula": the numbers in the boxes become the bankos, without blanks and repeats, and leave the
/// bag for good. Beeps.
void applyBanko(Surroundings& around, BankoBoxes& boxes);

/// "Seçimi Sil": no bankos. The boxes keep what they show, and no ball returns to the bag.
void clearBanko(SharedState& state);

/// "Yükle" of the banko window: asks, takes the bankos from the file, shows them and removes them
/// from the bag; warns if the file is broken. A file that goes while the question is open changes
/// nothing. Throws RunTimeError(open, read).
void loadBankoInBankoWindow(Surroundings& around, BankoBoxes& boxes);

/// "Kayıtla": asks, applies, then puts the bankos into the file. What the file holds of the bag
/// stays; a new file gets an empty bag. Throws RunTimeError(open, write).
void saveBanko(Surroundings& around, BankoBoxes& boxes);

}  // namespace karvenis
