#include "bag/BagFile.h"

#include <array>

#include "core/LittleEndian.h"

namespace karvenis {

std::int16_t BagFile::get(std::int64_t record) {
  std::array<std::byte, recordLength> bytes{};
  file_.read(record, bytes);
  return static_cast<std::int16_t>(getLittleEndian<std::uint16_t>(bytes));
}

void BagFile::put(std::int64_t record, std::int16_t word) {
  std::array<std::byte, recordLength> bytes{};
  putLittleEndian(std::span<std::byte>(bytes), static_cast<std::uint16_t>(word));
  file_.write(record, bytes);
}

void BagFile::readBag(SharedState& state, std::int16_t count) {
  state.Bag.clear();
  for (std::int64_t i = 1; i <= count; ++i) {
    const std::int16_t ball = get(bagCountRecord + i);
    if (!isBall(ball)) return;
    state.Bag.add(ball);
  }
}

void BagFile::readBanko(SharedState& state, std::int16_t count) {
  state.Banko.clear();
  if (count > mostBankos) return;
  for (std::int64_t i = 1; i <= count; ++i) state.Banko.add(get(bankoCountRecord + i));
}

void BagFile::writeBag(std::span<const std::int16_t> balls) {
  writeCounted(bagCountRecord, balls);
  const auto behind = bagCountRecord + 1 + static_cast<std::int64_t>(balls.size());
  for (std::int64_t record = behind; record < bankoCountRecord; ++record) put(record, 0);
}

void BagFile::writeBanko(std::span<const std::int16_t> balls) {
  writeCounted(bankoCountRecord, balls);
}

/// Writes the number of `balls` as word `record` and the balls behind it.
void BagFile::writeCounted(std::int64_t record, std::span<const std::int16_t> balls) {
  put(record, static_cast<std::int16_t>(balls.size()));
  for (const std::int16_t ball : balls) put(++record, ball);
}

bool BagFile::holdsBanko(std::int16_t count) const {
  return length() >= std::int64_t{recordLength} * (std::int64_t{count} + bankoCountRecord);
}

bool reachesBanko(Files& files) {
  return lengthOrNone(files, bagFileName) >= BagFile::recordLength * bankoCountRecord;
}

void LoadBagFromFile(Surroundings& around) {
  SharedState& state = around.state;
  BagFile file(around.files);
  const std::int64_t length = file.length();
  const std::int16_t count = length > 2 ? file.get(bagCountRecord) : std::int16_t{0};
  if (count > 0 && length > std::int64_t{BagFile::recordLength} * count) {
    around.boxes.beep();
    if (count > ballsInAll) {
      state.Bag.clear();
    } else {
      file.readBag(state, count);
      state.Bag.remove(state.Banko);
    }
  }
  file.close();
  around.boxes.beep();
}

void LoadBankoFromFile(Surroundings& around) {
  BagFile file(around.files);
  if (file.length() > std::int64_t{BagFile::recordLength} * bankoCountRecord - 1) {
    const std::int16_t count = file.get(bankoCountRecord);
    if (file.holdsBanko(count)) file.readBanko(around.state, count);
  }
  file.close();
  around.state.Bag.remove(around.state.Banko);
  around.boxes.beep();
}

void askAndLoadBag(Surroundings& around) {
  around.boxes.beep();
  if (!around.files.exists(bagFileName)) return;
  if (around.boxes.ask("Topları KARVENIS.DAT dosyasından yüklemek istiyormusunuz?")) {
    LoadBagFromFile(around);
  }
}

void askAndLoadBanko(Surroundings& around) {
  around.boxes.beep();
  if (!reachesBanko(around.files)) return;
  if (around.boxes.ask("Banko seçimini KARVENIS.DAT dosyasından yüklemek istiyormusunuz ?")) {
    LoadBankoFromFile(around);
  }
}

}  // namespace karvenis
