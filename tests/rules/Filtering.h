#pragma once

#include <gtest/gtest.h>

#include "comblist/Filters.h"
#include "doubles/Doubles.h"

namespace karvenis {

// The filters' questions about a list of numbers or pairs.
inline std::string unwantedOne(const std::string& list) {
  return "'" + list + "' numaralı topun yer aldığı kolonları silmek istiyormusunuz?";
}
inline std::string unwantedSeveral(const std::string& list) {
  return "'" + list + "' numaralı topların yer aldığı kolonları silmek istiyormusunuz?";
}
inline std::string wantedOne(const std::string& list) {
  return "'" + list + "' numaralı topun yer almadığı kolonları silmek istiyormusunuz?";
}
inline std::string wantedSeveral(const std::string& list) {
  return "'" + list +
         "' numaralı topların hiç birinin yer almadığı kolonları silmek istiyormusunuz?";
}
inline std::string unwantedPair(const std::string& pair) {
  return "'" + pair +
         "' numaralı topların (ikisinin de) yer aldığı kolonları silmek istiyormusunuz?";
}
inline std::string wantedPairs(const std::string& pairs) {
  return "'" + pairs + "'  ikililerinin hiç bulunmadığı kolonları silmek istiyormusunuz?";
}

inline constexpr char unwantedPrompt[] = "İstemediğiniz sayıları (aralarına virgül koyarak) girin.";
inline constexpr char wantedPrompt[] =
    "İstediğiniz sayıları (aralarına virgül koyarak) girin.\r"
    "(Herhangi biri olan kolonlar seçilecek.)";
inline constexpr char pairPrompt[] =
    "İstemediğiniz ikiliyi (sayıların arasına tire/eksi işareti koyarak) girin.";
inline constexpr char pairsPrompt[] =
    "En az birinin her bir kombinasyon içinde yer almasını istediğiniz ikililerin sayılarının "
    "arasına tire/eksi koyarak ve ikililerin aralarına virgül koyarak girin.";

inline const char* promptOf(Filter filter) {
  constexpr const char* prompts[] = {unwantedPrompt, wantedPrompt, pairPrompt, pairsPrompt};
  return prompts[static_cast<std::size_t>(filter)];
}

using Records = std::vector<ColumnRecord>;

inline ColumnRecord record(std::int32_t Word, const Column& balls) {
  return {.Word = Word, .Balls = balls};
}

/// Four columns that the tests tell apart by their first ball.
inline Records fourColumns() {
  return {record(1, column(1, 2, 3, 4, 5, 6)), record(2, column(7, 8, 9, 10, 11, 12)),
          record(-1, column(13, 14, 15, 16, 17, 18)), record(417, column(19, 20, 21, 22, 23, 24))};
}

template <typename TheWorld>
Bytes list(const TheWorld& world) {
  return world.files.bytes(combinationList);
}
template <typename TheWorld>
void putList(TheWorld& world, const Records& records) {
  world.files.folder[combinationList] = columnBytes(records);
}

/// The filter's command as the window runs it.
template <typename TheWorld>
bool run(Filter filter, TheWorld& world) {
  ListPage page;
  return filterList(filter, world.around, page, world.title);
}

/// What the input box shows in grey while it is empty.
inline const char* exampleOf(Filter filter) {
  constexpr const char* examples[] = {"örnek: 5,12,30", "örnek: 7,20", "örnek: 5-12",
                                      "örnek: 3-7,12-40"};
  return examples[static_cast<std::size_t>(filter)];
}

inline void expectInput(World& world, Filter filter, const std::string& typed) {
  world.boxes.expectBeep().expectInput(promptOf(filter), "Kolon SİLME", "", typed,
                                       exampleOf(filter));
}

}  // namespace karvenis
