#include "bag/BagFile.h"

#include <array>

#include "core/LittleEndian.h"

namespace karvenis {

std::int64_t bagFileLength(Files& files) {
  return static_cast<std::int64_t>(lengthOrNone(files, bagFileName));
}

BallSet<ballsInAll> BagFile::bag(std::int16_t count) {
  BallSet<ballsInAll> balls;
  if (count > ballsInAll) return balls;
  for (std::int64_t i = 1; i <= count; ++i) {
    const std::int16_t ball = get(bagCountWord + i);
    if (!isBall(ball)) break;
    balls.add(ball);
  }
  return balls;
}

BallSet<mostBankos> BagFile::bankos(std::int16_t count) {
  BallSet<mostBankos> balls;
  if (count > mostBankos) return balls;
  for (std::int64_t i = 1; i <= count; ++i) balls.add(get(bankoCountWord + i));
  return balls;
}

void BagFile::write(const BallSet<ballsInAll>& bag) {
  const auto balls = bag.balls();
  putCounted(bagCountWord, balls);
  const std::int64_t behind = bagCountWord + 1 + std::ssize(balls);
  for (std::int64_t word = behind; word < bankoCountWord; ++word) put(word, 0);
}

void BagFile::write(const BallSet<mostBankos>& bankos) {
  putCounted(bankoCountWord, bankos.balls());
}

std::int16_t BagFile::get(std::int64_t word) {
  std::array<std::byte, bagWordSize> bytes{};
  file_.read(word, bytes);
  return getLittleEndian<std::int16_t>(bytes);
}

void BagFile::put(std::int64_t word, std::int16_t value) {
  std::array<std::byte, bagWordSize> bytes{};
  putLittleEndian(bytes, value);
  file_.write(word, bytes);
}

/// Writes the number of `balls` as word `word` and the balls behind it.
void BagFile::putCounted(std::int64_t word, std::span<const std::int16_t> balls) {
  put(word, static_cast<std::int16_t>(balls.size()));
  for (const std::int16_t ball : balls) put(++word, ball);
}

}  // namespace karvenis
