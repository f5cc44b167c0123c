#include "bag/BankoActions.h"

#include "bag/BagFile.h"
#include "bag/Spoken.h"
#include "bag/Texts.h"

namespace karvenis {
namespace {

/// The ball whose number `text` begins with; 0 if it begins with none.
std::int16_t ballAtStart(std::string_view text) {
  std::int16_t number = 0;
  for (const char c : text) {
    if (c < '0' || c > '9') break;
    number = static_cast<std::int16_t>(number * 10 + (c - '0'));
    if (number > ballsInAll) return 0;
  }
  return number;
}

void clearFields(BankoFields& fields) {
  for (int index = 0; index < mostBankos; ++index) fields.setText(index, "");
}

/// The numbers of the fields in use become the bankos, each once.
void takeTyped(SharedState& state, const BankoFields& fields) {
  state.Banko.clear();
  for (int index = 0; index < fields.count(); ++index) {
    const std::int16_t ball = ballAtStart(fields.text(index));
    if (ball > 0 && !state.Banko.contains(ball)) state.Banko.add(ball);
  }
}

}  // namespace

const char* bankoCaption(int count) {
  if (count == 0) return "";
  return count == 1 ? "Banko Top:" : "Banko Toplar:";
}

std::string bankoText(std::string_view typed) {
  const std::int16_t ball = ballAtStart(typed);
  if (ball == 0) return {};
  return std::to_string(ball);
}

void ShowBankoSelection(const SharedState& state, BankoFields& fields) {
  const auto bankos = state.Banko.balls();
  fields.chooseCount(static_cast<int>(bankos.size()));
  for (int index = 0; const std::int16_t banko : bankos) {
    fields.setText(index++, std::to_string(banko));
  }
}

void applyBanko(Surroundings& around, BankoFields& fields) {
  around.boxes.beep();
  takeTyped(around.state, fields);
  clearFields(fields);
  around.state.Bag.remove(around.state.Banko);
  ShowBankoSelection(around.state, fields);
  around.windows.announce(spokenBanko(around.state));
}

void clearBanko(SharedState& state) { state.Banko.clear(); }

void loadBankoInBankoWindow(Surroundings& around, BankoFields& fields) {
  around.boxes.beep();
  const std::int64_t length = bagFileLength(around.files);
  if (!holdsBankos(length, 0)) return;
  if (!around.boxes.ask("Banko topları KARVENIS.DAT dosyasından yüklemek istiyormusunuz ?")) return;
  if (!around.files.exists(bagFileName)) return;  // deleted while the question was open

  BagFile file(around.files);
  const std::int16_t count = file.bankoCount();
  if (holdsBankos(length, count)) {
    around.state.Banko = file.bankos(count);
    clearFields(fields);
    ShowBankoSelection(around.state, fields);
    around.windows.announce(spokenBanko(around.state));
  } else {
    around.boxes.warn(bagFileBroken, errorTitle);
  }
  file.close();
  around.state.Bag.remove(around.state.Banko);
}

void saveBanko(Surroundings& around, BankoFields& fields) {
  around.boxes.beep();
  if (!around.boxes.ask(
          "Banko topları (topu) KARVENIS.DAT dosyasına kayıtlamak istiyormusunuz ?")) {
    return;
  }
  applyBanko(around, fields);

  BagFile file(around.files);
  if (file.length() < bagWordSize) file.write(BallSet<ballsInAll>());
  file.write(around.state.Banko);
  file.close();
  around.boxes.beep();
  around.boxes.message(bagFileSaved);
}

}  // namespace karvenis
