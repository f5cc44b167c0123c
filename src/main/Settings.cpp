#include "main/Settings.h"

#include <array>
#include <bit>
#include <cmath>
#include <cstdint>

#include "core/LittleEndian.h"
#include "core/RecordFile.h"

namespace karvenis {
namespace {

using Record = std::array<std::byte, 4>;
constexpr std::int64_t topRecord = 1;
constexpr std::int64_t leftRecord = 2;

float readFloat(RecordFile& file, std::int64_t number) {
  Record record{};
  file.read(number, record);
  return std::bit_cast<float>(getLittleEndian<std::uint32_t>(record));
}

void writeFloat(RecordFile& file, std::int64_t number, float value) {
  Record record{};
  putLittleEndian(record, std::bit_cast<std::uint32_t>(value));
  file.write(number, record);
}

}  // namespace

std::optional<Place> readPlace(Files& files) {
  if (!files.exists(settingsFile)) return std::nullopt;
  RecordFile file(files, settingsFile, Record{}.size());
  Place place;
  if (file.length() >= 2 * Record{}.size()) {
    place = {readFloat(file, topRecord), readFloat(file, leftRecord)};
  }
  file.close();
  if (!std::isfinite(place.top) || !std::isfinite(place.left)) return std::nullopt;
  return place;
}

void writePlace(Files& files, Place place) {
  RecordFile file(files, settingsFile, Record{}.size());
  writeFloat(file, topRecord, place.top);
  writeFloat(file, leftRecord, place.left);
  file.close();
}

}  // namespace karvenis
