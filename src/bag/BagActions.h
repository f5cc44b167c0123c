#pragma once

#include "core/Surroundings.h"

namespace karvenis {

/// The 49 ball buttons as the bag's actions see them.
class BallButtons {
 public:
  virtual ~BallButtons() = default;
  /// `ball` is 1..49.
  [[nodiscard]] virtual bool isMarked(int ball) const = 0;
  virtual void setMarked(int ball, bool marked) = 0;

  /// Marks or unmarks all 49 balls.
  void markAll(bool marked);
};

/// Marks the balls of the bag and no others.
void showBag(const SharedState& state, BallButtons& buttons);

/// "Uygula": the marked balls, without the bankos, become the bag, and the buttons show it. Any
/// number of balls is accepted. Beeps.
void applyBag(Surroundings& around, BallButtons& buttons);

/// "Yükle" of the bag window: asks, takes the bag from the file and shows it. Unlike the main
/// window's load it accepts a file of exactly 2 x count bytes, warns if the file is broken, and
/// empties the bag if the count is 0 or less. If the file is deleted while the question is open,
/// nothing changes. Throws RunTimeError(open, read).
void loadBagInBagWindow(Surroundings& around, BallButtons& buttons);

/// "Kayıtla": asks; then the marked balls, also those that are bankos, become the bag and are
/// written to the file. The bankos in the file stay. Throws RunTimeError(open, read, write).
void saveBag(Surroundings& around, const BallButtons& buttons);

}  // namespace karvenis
