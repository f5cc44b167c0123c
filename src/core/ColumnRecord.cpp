#include "core/ColumnRecord.h"

#include "core/LittleEndian.h"
#include "platform/RunTimeError.h"

namespace karvenis {

void encode(const ColumnRecord& record, std::span<std::byte, ColumnRecord::size> bytes) {
  putLittleEndian(bytes.first<4>(), static_cast<std::uint32_t>(record.Word));
  for (std::size_t k = 1; k <= ballsInColumn; ++k) {
    putLittleEndian(bytes.subspan(2 + 2 * k, 2), static_cast<std::uint16_t>(record.Balls[k]));
  }
}

ColumnRecord decodeColumn(std::span<const std::byte, ColumnRecord::size> bytes) {
  ColumnRecord record;
  record.Word = static_cast<std::int32_t>(getLittleEndian<std::uint32_t>(bytes.first<4>()));
  for (std::size_t k = 1; k <= ballsInColumn; ++k) {
    record.Balls[k] =
        static_cast<std::int16_t>(getLittleEndian<std::uint16_t>(bytes.subspan(2 + 2 * k, 2)));
  }
  return record;
}

std::int16_t columnSum(const Column& column, std::int64_t number) {
  std::int32_t sum = 0;
  for (std::size_t k = 1; k <= ballsInColumn; ++k) {
    sum += column[k];
    if (sum != static_cast<std::int16_t>(sum)) {
      throw RunTimeError(Fault::overflow, std::to_string(sum),
                         std::to_string(number) + ". kolon bozuk, sayılarının toplamı sığmıyor");
    }
  }
  return static_cast<std::int16_t>(sum);
}

}  // namespace karvenis
