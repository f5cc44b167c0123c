#pragma once

#include <gtest/gtest.h>

#include "comblist/Filters.h"
#include "doubles/Doubles.h"

// The filters' questions for a list of numbers, as literals that tables hold.
#define ONE(list) "'" list "' numaralı topun yer aldığı kolonları silmek istiyormusunuz?"
#define SEVERAL(list) "'" list "' numaralı topların yer aldığı kolonları silmek istiyormusunuz?"
#define WANTED_ONE(list) "'" list "' numaralı topun yer almadığı kolonları silmek istiyormusunuz?"
#define WANTED_SEVERAL(list) \
  "'" list "' numaralı topların hiç birinin yer almadığı kolonları silmek istiyormusunuz?"
#define PAIR(list) \
  "'" list "' numaralı topların (ikisinin de) yer aldığı kolonları silmek istiyormusunuz?"
#define PAIRS(list) "'" list "'  ikililerinin hiç bulunmadığı kolonları silmek istiyormusunuz?"

namespace karvenis {

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

inline Bytes list(const World& world) { return world.files.bytes(combinationList); }
inline void putList(World& world, const Records& records) {
  world.files.folder[combinationList] = columnBytes(records);
}

inline void expectInput(World& world, Filter filter, const char* typed) {
  world.boxes.expectInput(promptOf(filter), "Kolon SİLME", "", typed);
}

}  // namespace karvenis
