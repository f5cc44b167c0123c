#include "bag/BagActions.h"

#include "bag/BagFile.h"
#include "bag/Spoken.h"
#include "bag/Texts.h"

namespace karvenis {
namespace {

/// Makes the marked balls, in ascending order, the bag; bankos among them are not removed.
void takeMarked(SharedState& state, const BallButtons& buttons) {
  state.Bag.clear();
  for (std::int16_t ball = 1; ball <= ballsInAll; ++ball) {
    if (buttons.isMarked(ball)) state.Bag.add(ball);
  }
}

void markBag(const SharedState& state, BallButtons& buttons) {
  for (const std::int16_t ball : state.Bag.balls()) {
    if (isBall(ball)) buttons.setMarked(ball, true);
  }
}

}  // namespace

void BallButtons::markAll(bool marked) {
  for (int ball = 1; ball <= ballsInAll; ++ball) setMarked(ball, marked);
}

void showBag(const SharedState& state, BallButtons& buttons) {
  buttons.markAll(false);
  markBag(state, buttons);
}

void applyBag(Surroundings& around, BallButtons& buttons) {
  takeMarked(around.state, buttons);
  buttons.markAll(false);
  around.boxes.beep();
  around.state.Bag.remove(around.state.Banko);
  markBag(around.state, buttons);
  around.windows.announce(spokenBag(around.state));
}

void loadBagInBagWindow(Surroundings& around, BallButtons& buttons) {
  around.boxes.beep();
  const std::int64_t length = bagFileLength(around.files);
  if (length <= bagWordSize) return;
  if (!around.boxes.ask("Topları KARVENIS.DAT dosyasından yüklemek istiyormusunuz ?")) return;
  if (!around.files.exists(bagFileName)) return;  // deleted while the question was open

  BagFile file(around.files);
  const std::int16_t count = file.bagCount();
  if (length < bagWordSize * count) {
    around.boxes.warn(bagFileBroken, errorTitle);
    file.close();
    return;
  }
  buttons.markAll(false);
  if (count > 0) around.boxes.beep();
  around.state.Bag = file.bag(count);
  around.state.Bag.remove(around.state.Banko);
  markBag(around.state, buttons);
  file.close();
  around.windows.announce(spokenBag(around.state));
}

void saveBag(Surroundings& around, const BallButtons& buttons) {
  around.boxes.beep();
  if (!around.boxes.ask("Topları KARVENIS.DAT dosyasına kayıtlamak istiyormusunuz ?")) return;

  takeMarked(around.state, buttons);
  BagFile file(around.files);
  file.write(around.state.Bag);
  file.close();
  around.boxes.beep();
  around.boxes.message(bagFileSaved);
}

}  // namespace karvenis
