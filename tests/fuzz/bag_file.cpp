// The bag file: any bytes load as sets that stay in their bounds.
#include "bag/BagFile.h"

#include <algorithm>

#include "fuzz/Fuzz.h"

using namespace karvenis;

namespace {

bool isBag(const SharedState& state) {
  return state.Bag[0] >= 0 && state.Bag[0] <= ballsInAll &&
         std::ranges::all_of(state.balls(), [](auto ball) { return ball >= 1 && ball <= 49; });
}

}  // namespace

int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  PlainWorld world;
  world.files.folder[bagFileName] = bytesOf(data, size);
  world.state.Banko = {2, 7, 12};
  allowingFaults([&] { LoadBagFromFile(world.around); });
  require(isBag(world.state));
  allowingFaults([&] { LoadBankoFromFile(world.around); });
  require(isBag(world.state) && world.state.Banko[0] >= 0 && world.state.Banko[0] <= mostBankos);
  require(world.files.bytes(bagFileName) == bytesOf(data, size));
  return 0;
}
