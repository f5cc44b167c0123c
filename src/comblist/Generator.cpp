#include "comblist/Generator.h"

#include "core/Checked.h"
#include "core/Numbers.h"
#include "core/ReplaceList.h"

namespace karvenis {
namespace {

/// While there is no list, a smaller count in the box is replaced by the largest one.
constexpr std::int32_t leastSensibleCount = 8;
constexpr char attentionTitle[] = "! DİKKAT !";

/// Both modes write over a copy of the old list: in a new list too, records of a longer old one
/// stay behind the new ones. Kept on purpose.
constexpr ListAndScratch overOldList{combinationList, tmpScratch, ScratchStart::copyOfList};

}  // namespace

Generator::Generator(Surroundings& around, TitleBar& title)
    : around_(around),
      title_(title),
      ExistingCount(columnCountOrNone(around.files, combinationList)) {}

std::string Generator::countForNewList(const std::string& text) const {
  if (ExistingCount > 0) return std::to_string(ExistingCount);
  return leadingNumber(text) < leastSensibleCount ? std::to_string(recordLimit) : text;
}

Generator::Outcome Generator::start(Mode mode, std::string_view text) {
  WantedCount = typedNumber32(text);
  if (refuses(mode)) return Outcome::refused;
  if (mode == Mode::newList && !mayReplaceList()) return Outcome::kept;
  around_.chance.seedFrom(around_.clock);
  const GeneratorDraw draw(around_.state);
  if (mode == Mode::newList) {
    GenerateNewList(draw);
  } else {
    AppendToList(draw);
  }
  return Outcome::done;
}

/// Whether WantedCount is out of range; a box or a beep has then told the user so.
bool Generator::refuses(Mode mode) {
  if (mode == Mode::newList) {
    if (WantedCount >= 1 && WantedCount <= recordLimit) return false;
    around_.boxes.warn("En az 1 ve en çok 32767 kolon kayıtlayabilirsiniz!", attentionTitle);
    return true;
  }
  if (std::int64_t{ExistingCount} + WantedCount > recordLimit) {
    around_.boxes.warn("En çok" + withBlank(std::int64_t{recordLimit} - ExistingCount) +
                           " kolon ekleyebilirsiniz!",
                       attentionTitle);
    return true;
  }
  if (WantedCount >= 1) return false;
  around_.boxes.beep();
  return true;
}

bool Generator::mayReplaceList() {
  if (ExistingCount <= 0) return true;
  return around_.boxes.ask("Mevcut kombinasyon listesini yenisi ile değiştirmek istiyormusunuz?");
}

/// Writes records 1..WantedCount.
void Generator::GenerateNewList(const GeneratorDraw& draw) {
  backUpAnyList(around_);
  replaceList(around_, overOldList, [&](ColumnFile& list) {
    RecordNo = 0;
    do {
      title_.setCaption("KOLON=" + withBlank(RecordNo + 1));
      writeNext(list, draw.draw(around_.chance));
    } while (RecordNo < WantedCount);
  });
  finish(savedInList(RecordNo));
}

/// Writes WantedCount records behind those that the list has now.
void Generator::AppendToList(const GeneratorDraw& draw) {
  std::int16_t Start = 0;
  replaceList(around_, overOldList, [&](ColumnFile& list) {
    RecordNo = Start = checked<std::int16_t>(list.count());
    do {
      title_.setCaption("KOLON=" + withBlank(RecordNo + 1) + "  [" +
                        std::to_string(RecordNo - Start + 1) + "]");
      writeNext(list, draw.draw(around_.chance));
    } while (RecordNo < Start + WantedCount);
  });
  finish(withBlank(RecordNo - Start) + " kolon 'KARVENIS.LST' dosyasına eklendi.");
}

/// Writes `drawn` as the next record, whose word is its own number. Throws RunTimeError(overflow)
/// beyond the 16 bits of RecordNo.
void Generator::writeNext(ColumnFile& list, const Column& drawn) {
  RecordNo = checked<std::int16_t>(RecordNo + 1);
  list.put(RecordNo, {.Word = RecordNo, .Balls = drawn});
}

void Generator::finish(const std::string& message) {
  around_.boxes.beep();
  around_.boxes.message(message);
  title_.setCaption(generatorTitle);
}

}  // namespace karvenis
