#include "comblist/Generator.h"

#include "core/Checked.h"
#include "core/ColumnFile.h"
#include "core/Numbers.h"

namespace karvenis {
namespace {

/// A count below this one, left in the box, is taken for a slip when a first list is to be made.
constexpr std::int32_t leastSensibleCount = 8;
constexpr char attentionTitle[] = "! DİKKAT !";

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
  GeneratorDraw draw(around_.state);
  if (mode == Mode::newList) {
    GenerateNewList(draw);
  } else {
    AppendToList(draw);
  }
  return Outcome::done;
}

/// Whether the wanted count cannot be; the user has heard it then.
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

/// Writes records 1..WantedCount. Records of a longer old list stay behind them.
void Generator::GenerateNewList(GeneratorDraw& draw) {
  backUpList(around_.files);
  ColumnFile list = open();
  RecordNo = 0;
  do {
    const std::int64_t number = std::int64_t{RecordNo} + 1;
    title_.setCaption(caption_.start("KOLON=").addWithBlank(number).text());
    write(list, number, draw.draw(around_.chance));
  } while (RecordNo < WantedCount);
  finish(list, RecordNo, " kolon 'KARVENIS.LST' dosyasına kayıtlandı.");
}

/// Writes WantedCount records behind those that the list has by now.
void Generator::AppendToList(GeneratorDraw& draw) {
  ColumnFile list = open();
  const std::int32_t Start = list.count();
  RecordNo = checked<std::int16_t>(Start);
  do {
    const std::int64_t number = std::int64_t{RecordNo} + 1;
    caption_.start("KOLON=").addWithBlank(number);
    caption_.add("  [").add(number - Start).add("]");
    title_.setCaption(caption_.text());
    write(list, number, draw.draw(around_.chance));
  } while (RecordNo < std::int64_t{Start} + WantedCount);
  finish(list, RecordNo - Start, " kolon 'KARVENIS.LST' dosyasına eklendi.");
}

/// The columns are written to a copy of the list, which takes the list's place when it is whole, so
/// that the list holds its old or its new bytes whatever happens.
ColumnFile Generator::open() {
  copyListTo(around_.files, tmpScratch);
  return {around_.state, around_.files, tmpScratch};
}

/// Writes `drawn` as record `number`, which is also its word.
void Generator::write(ColumnFile& list, std::int64_t number, const Column& drawn) {
  RecordNo = checked<std::int16_t>(number);
  list.put(RecordNo, {.Word = RecordNo, .Balls = drawn});
}

void Generator::finish(ColumnFile& list, std::int32_t written, const char* words) {
  list.close();
  around_.files.rename(tmpScratch, combinationList);
  around_.boxes.beep();
  around_.boxes.message(withBlank(written) + words);
  title_.setCaption(generatorTitle);
}

}  // namespace karvenis
