#include "core/ColumnRecord.h"

#include "core/LittleEndian.h"
#include "platform/RunTimeError.h"

namespace karvenis {
namespace {

constexpr std::size_t wordSize = 4;
constexpr std::size_t ballSize = 2;

}  // namespace

void encode(const ColumnRecord& record, std::span<std::byte, ColumnRecord::size> bytes) {
  putLittleEndian(bytes.first<wordSize>(), record.Word);
  std::span<std::byte> place = bytes.subspan<wordSize>();
  for (const std::int16_t ball : record.Balls) {
    putLittleEndian(place.first<ballSize>(), ball);
    place = place.subspan(ballSize);
  }
}

ColumnRecord decodeColumn(std::span<const std::byte, ColumnRecord::size> bytes) {
  ColumnRecord record;
  record.Word = getLittleEndian<std::int32_t>(bytes.first<wordSize>());
  std::span<const std::byte> place = bytes.subspan<wordSize>();
  for (std::int16_t& ball : record.Balls) {
    ball = getLittleEndian<std::int16_t>(place.first<ballSize>());
    place = place.subspan(ballSize);
  }
  return record;
}

std::int16_t columnSum(const Column& column, const std::string& file, std::int64_t number) {
  std::int16_t ColumnSum = 0;
  for (const std::int16_t ball : column) {
    const int sum = ColumnSum + ball;
    ColumnSum = static_cast<std::int16_t>(sum);
    if (ColumnSum != sum) {
      throw RunTimeError(Fault::damaged, file,
                         std::to_string(number) + ". kolonun sayılarının toplamı sığmıyor.");
    }
  }
  return ColumnSum;
}

}  // namespace karvenis
