#include <algorithm>

#include "platform/Keys.h"
#include "windows/KnownProgram.h"

// The bag and banko windows of the known program.

namespace karvenis {
namespace {

constexpr char savedInBagFile[] = "Seçilen toplar KARVENIS.DAT dosyasına kayıtlandı...";

/// What a banko's box leaves of a text.
std::string bankoOf(const std::string& typed) {
  const int number = std::atoi(typed.c_str());
  return number < 1 || number > 49 ? "" : std::to_string(number);
}

}  // namespace

// The bag window.

void KnownProgram::pressBag(int key) {
  switch (key) {
    case keyF1:
      takeMarks();
      beep();
      removeBankos();
      return markBag();
    case keyF2:
      return loadBag();
    case keyF3:
      return saveBag();
    case keyF4:
      for (int ball = 1; ball <= 49; ++ball) marked.insert(ball);
      return;
    case keyF5:
      return marked.clear();
    default:
      return;
  }
}

void KnownProgram::mark(int ball) {
  if (!marked.erase(ball)) marked.insert(ball);
}

void KnownProgram::takeMarks() { bag.assign(marked.begin(), marked.end()); }
void KnownProgram::markBag() { marked = {bag.begin(), bag.end()}; }

void KnownProgram::removeBankos() {
  std::erase_if(bag,
                [&](std::int16_t ball) { return std::ranges::find(banko, ball) != banko.end(); });
}

void KnownProgram::loadBag() {
  beep();
  if (!bagFile || !asks("Topları KARVENIS.DAT dosyasından yüklemek istiyormusunuz ?")) return;
  const int count = bagFile->front();
  if (count > 0) beep();
  bag.assign(bagFile->begin() + 1, bagFile->begin() + 1 + count);
  removeBankos();
  markBag();
}

void KnownProgram::saveBag() {
  beep();
  if (!asks("Topları KARVENIS.DAT dosyasına kayıtlamak istiyormusunuz ?")) return;
  takeMarks();
  if (!bagFile) bagFile.emplace(50);
  std::fill_n(bagFile->begin(), 50, 0);
  bagFile->front() = static_cast<int>(bag.size());
  std::ranges::copy(bag, bagFile->begin() + 1);
  beep();
  boxes_.expectMessage(savedInBagFile);
}

// The banko window.

void KnownProgram::pressBanko(int key) {
  if (key == keyF1) applyBanko();
  if (key == keyF2) loadBanko();
  if (key == keyF3) saveBanko();
  if (key >= keyF4 && key <= keyF9) bankoCount = key - keyF4;
}

void KnownProgram::clearBankos() { banko.clear(); }

void KnownProgram::typeBanko(std::size_t box, const std::string& digits) {
  bankoTexts[box].clear();
  for (const char digit : digits) bankoTexts[box] = bankoOf(bankoTexts[box] + digit);
}

void KnownProgram::showBankos() {
  bankoCount = static_cast<int>(banko.size());
  for (std::size_t i = 0; i < banko.size(); ++i) bankoTexts[i] = std::to_string(banko[i]);
}

void KnownProgram::applyBanko() {
  beep();
  banko.clear();
  for (int i = 0; i < bankoCount; ++i) {
    const auto ball =
        static_cast<std::int16_t>(std::atoi(bankoTexts[static_cast<std::size_t>(i)].c_str()));
    if (ball > 0 && std::ranges::find(banko, ball) == banko.end()) banko.push_back(ball);
  }
  bankoTexts = {};
  removeBankos();
  showBankos();
}

void KnownProgram::loadBanko() {
  beep();
  if (!bagFile || bagFile->size() < 51) return;
  if (!asks("Banko topları KARVENIS.DAT dosyasından yüklemek istiyormusunuz ?")) return;
  banko.assign(bagFile->begin() + 51, bagFile->begin() + 51 + (*bagFile)[50]);
  bankoTexts = {};
  showBankos();
  removeBankos();
}

void KnownProgram::saveBanko() {
  beep();
  if (!asks("Banko topları (topu) KARVENIS.DAT dosyasına kayıtlamak istiyormusunuz ?")) return;
  applyBanko();
  if (!bagFile) bagFile.emplace(50);
  bagFile->resize(std::max(bagFile->size(), 51 + banko.size()));
  (*bagFile)[50] = static_cast<int>(banko.size());
  std::ranges::copy(banko, bagFile->begin() + 51);
  beep();
  boxes_.expectMessage(savedInBagFile);
}

}  // namespace karvenis
