#include "bag/BagActions.h"

#include "bag/BagFile.h"

namespace karvenis {
namespace {

/// The marked balls in ascending order; the bankos among them stay.
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

/// Reads a bag of `count` balls, where the file is known to be long enough for them.
void takeBag(Surroundings& around, BagFile& file, std::int16_t count) {
  around.state.Bag.clear();
  if (count <= 0) return;
  around.boxes.beep();
  if (count > ballsInAll) return;
  file.readBag(around.state, count);
  around.state.Bag.remove(around.state.Banko);
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
}

void loadBag(Surroundings& around, BallButtons& buttons) {
  around.boxes.beep();
  if (lengthOrNone(around.files, bagFileName) <= BagFile::recordLength) return;
  if (!around.boxes.ask("Topları KARVENIS.DAT dosyasından yüklemek istiyormusunuz ?")) return;

  BagFile file(around.files);
  const std::int16_t count = file.get(bagCountRecord);
  if (file.length() < std::int64_t{BagFile::recordLength} * count) {
    around.boxes.warn(bagFileBroken, errorTitle);
    file.close();
    return;
  }
  buttons.markAll(false);
  takeBag(around, file, count);
  markBag(around.state, buttons);
  file.close();
}

void saveBag(Surroundings& around, const BallButtons& buttons) {
  around.boxes.beep();
  if (!around.boxes.ask("Topları KARVENIS.DAT dosyasına kayıtlamak istiyormusunuz ?")) return;

  takeMarked(around.state, buttons);
  BagFile file(around.files);
  file.writeBag(around.state.Bag.balls());
  file.close();
  around.boxes.beep();
  around.boxes.message(bagFileSaved);
}

}  // namespace karvenis
