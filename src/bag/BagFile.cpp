#include "bag/BagFile.h"

#include <algorithm>
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
  state.Bag[0] = count;
  for (std::int16_t i = 1; i <= count; ++i) {
    const std::int16_t ball = get(bagCountRecord + i);
    if (!isBall(ball)) {
      state.Bag[0] = static_cast<std::int16_t>(i - 1);
      return;
    }
    state.Bag[static_cast<std::size_t>(i)] = ball;
  }
}

void BagFile::readBanko(SharedState& state, std::int16_t count) {
  state.Banko[0] = count >= 1 && count <= mostBankos ? count : std::int16_t{0};
  for (std::int16_t i = 1; i <= state.Banko[0]; ++i) {
    state.Banko[static_cast<std::size_t>(i)] = get(bankoCountRecord + i);
  }
}

bool BagFile::holdsBanko(std::int16_t count) const {
  return length() >= std::int64_t{recordLength} * (std::int64_t{count} + bankoCountRecord);
}

bool reachesBanko(Files& files) {
  return lengthOrNone(files, bagFileName) >= BagFile::recordLength * bankoCountRecord;
}

void removeBankos(SharedState& state) {
  const auto banko = state.bankos();
  const auto bag = std::span(state.Bag).subspan(1, state.balls().size());
  const auto isBanko = [&](std::int16_t ball) {
    return std::ranges::find(banko, ball) != banko.end();
  };
  const auto end = std::remove_if(bag.begin(), bag.end(), isBanko);
  state.Bag[0] = static_cast<std::int16_t>(end - bag.begin());
}

void LoadBagFromFile(Surroundings& around) {
  SharedState& state = around.state;
  BagFile file(around.files);
  const std::int64_t length = file.length();
  const std::int16_t count = length > 2 ? file.get(bagCountRecord) : std::int16_t{0};
  if (count > 0 && length > std::int64_t{BagFile::recordLength} * count) {
    around.boxes.beep();
    if (count > ballsInAll) {
      state.Bag[0] = 0;
    } else {
      file.readBag(state, count);
      removeBankos(state);
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
  removeBankos(around.state);
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
