// The settings file: any bytes give a finite place or none.
#include "main/Settings.h"

#include <cmath>

#include "fuzz/Fuzz.h"

namespace karvenis {
namespace {

const Target settings("settings", [](const std::uint8_t* data, std::size_t size) {
  QuietWorld world;
  world.files.folder[settingsFile] = bytesOf(data, size);
  const auto place = readPlace(world.files);
  require(!place || (std::isfinite(place->top) && std::isfinite(place->left)));
  require(world.files.bytes(settingsFile) == bytesOf(data, size));
});

}  // namespace
}  // namespace karvenis
