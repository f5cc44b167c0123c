#pragma once

#include <string>
#include <string_view>

#include "core/Surroundings.h"

namespace karvenis {

/// The banko window's options and text boxes, here called fields, as its actions see them.
class BankoFields {
 public:
  virtual ~BankoFields() = default;
  /// The number of bankos that the selected option stands for, 0..5; 0 if none is selected.
  [[nodiscard]] virtual int count() const = 0;
  /// Selects the option of `count` (0..5) and shows as many fields.
  virtual void chooseCount(int count) = 0;
  /// `index` is 0..4.
  [[nodiscard]] virtual std::string text(int index) const = 0;
  virtual void setText(int index, const std::string& text) = 0;
};

/// The caption over `count` fields (0..5).
[[nodiscard]] const char* bankoCaption(int count);

/// What a field keeps of the text `typed` into it: the number that it begins with, without leading
/// zeros, or nothing if that is no ball (1..49). Only ASCII digits at the very start count.
[[nodiscard]] std::string bankoText(std::string_view typed);

/// Shows the bankos: selects the option of their number and writes them into the first fields. A
/// field does not take a number that is no ball. The other fields keep their text.
void ShowBankoSelection(const SharedState& state, BankoFields& fields);

/// "Uygula": the numbers in the fields become the bankos, each once; empty fields do not count.
/// The bankos are removed from the bag and do not come back. Beeps.
void applyBanko(Surroundings& around, BankoFields& fields);

/// "Seçimi Sil": removes all bankos. The fields keep what they show, and no ball returns to the
/// bag.
void clearBanko(SharedState& state);

/// "Yükle" of the banko window: asks, takes the bankos from the file, shows them and removes them
/// from the bag; warns if the file is broken. If the file is deleted while the question is open,
/// nothing changes. Throws RunTimeError(open, read).
void loadBankoInBankoWindow(Surroundings& around, BankoFields& fields);

/// "Kayıtla": asks, applies, then writes the bankos to the file. The bag in the file stays; a new
/// file gets an empty bag. Throws RunTimeError(open, read, write).
void saveBanko(Surroundings& around, BankoFields& fields);

}  // namespace karvenis
