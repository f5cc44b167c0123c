// The bag file: any bytes load as sets that hold balls only.
#include "bag/BagFile.h"
#include "bag/MainWindowLoads.h"

#include <algorithm>

#include "fuzz/Fuzz.h"

namespace karvenis {
namespace {

bool isBag(const SharedState& state) { return std::ranges::all_of(state.Bag.balls(), isBall); }

const Target bagFile("bag_file", [](const std::uint8_t* data, std::size_t size) {
  QuietWorld world;
  world.files.folder[bagFileName] = bytesOf(data, size);
  world.state.Banko.add(7);
  world.state.Banko.add(12);
  allowingFaults([&] { LoadBagFromFile(world.around); });
  require(isBag(world.state));
  allowingFaults([&] { LoadBankoFromFile(world.around); });
  require(isBag(world.state));
  require(world.files.bytes(bagFileName) == bytesOf(data, size));
});

}  // namespace
}  // namespace karvenis
