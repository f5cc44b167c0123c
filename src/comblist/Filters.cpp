#include "comblist/Filters.h"

#include <algorithm>
#include <optional>
#include <string>

#include "comblist/FilterInput.h"
#include "core/Numbers.h"
#include "core/ReplaceList.h"

namespace karvenis {
namespace {

/// The words that phase 1 marks records with.
constexpr std::int32_t keepWord = 417;
constexpr std::int32_t deleteWord = -1;

/// No title with the progress is longer.
constexpr std::size_t titleRoom = 64;

auto countMarked(const FilterMarks& marks, const Column& column) {
  return std::ranges::count_if(column, [&](std::int16_t ball) { return marks.has(ball); });
}

// Which columns each filter keeps.

bool noneIsMarked(const FilterMarks& marks, const Column& column) {
  return countMarked(marks, column) == 0;
}

/// The third ball is not looked up but compared with the mark itself, so that it never counts.
bool anyIsMarked(const FilterMarks& marks, const Column& column) {
  const auto [b1, b2, b3, b4, b5, b6] = column;
  return marks.has(b1) || marks.has(b2) || b3 == FilterMarks::set || marks.has(b4) ||
         marks.has(b5) || marks.has(b6);
}

bool atMostOneIsMarked(const FilterMarks& marks, const Column& column) {
  return countMarked(marks, column) <= 1;
}

bool anyPairIsMarked(const FilterMarks& marks, const Column& column) {
  for (auto a = column.begin(); a != column.end(); ++a) {
    for (auto b = a + 1; b != column.end(); ++b) {
      if (marks.hasPair(*a, *b)) return true;
    }
  }
  return false;
}

/// Which records phase 2 copies.
enum class Copies { allButDeleted, onlyKept };

/// What happens to a list that lost its records while the question was open.
enum class EmptyList { stays, isDeleted };

/// What differs from filter to filter.
struct Kind {
  const char* prompt;
  const char* example;  // shown in grey while nothing is typed
  std::optional<std::string> (*read)(const std::string& InputText, FilterMarks& marks);
  const char* questionOne;      // follows the quoted numbers if there is one,
  const char* questionSeveral;  // and if there are several
  bool (*keeps)(const FilterMarks& marks, const Column& column);
  std::optional<std::int32_t> firstWord;  // what phase 1 writes before the final word
  const char* phase2;
  Copies copies;
  EmptyList emptyList;
};

constexpr Kind kinds[] = {
    {.prompt = "İstemediğiniz sayıları (aralarına virgül koyarak) girin.",
     .example = "örnek: 5,12,30",
     .read = readNumbers,
     .questionOne = "' numaralı topun yer aldığı kolonları silmek istiyormusunuz?",
     .questionSeveral = "' numaralı topların yer aldığı kolonları silmek istiyormusunuz?",
     .keeps = noneIsMarked,
     .firstWord = keepWord,
     .phase2 = " Faz 2 - Kolon :",
     .copies = Copies::allButDeleted,
     .emptyList = EmptyList::stays},
    {.prompt = "İstediğiniz sayıları (aralarına virgül koyarak) girin.\r"
               "(Herhangi biri olan kolonlar seçilecek.)",
     .example = "örnek: 7,20",
     .read = readNumbers,
     .questionOne = "' numaralı topun yer almadığı kolonları silmek istiyormusunuz?",
     .questionSeveral = "' numaralı topların hiç birinin yer almadığı kolonları silmek "
                        "istiyormusunuz?",
     .keeps = anyIsMarked,
     .firstWord = deleteWord,
     .phase2 = " FAZ 2 - Kolon :",
     .copies = Copies::allButDeleted,
     .emptyList = EmptyList::stays},
    {.prompt = "İstemediğiniz ikiliyi (sayıların arasına tire/eksi işareti koyarak) girin.",
     .example = "örnek: 5-12",
     .read = readPair,
     .questionOne = "' numaralı topların (ikisinin de) yer aldığı kolonları silmek "
                    "istiyormusunuz?",
     .questionSeveral = "' numaralı topların (ikisinin de) yer aldığı kolonları silmek "
                        "istiyormusunuz?",
     .keeps = atMostOneIsMarked,
     .firstWord = keepWord,
     .phase2 = " Faz 2 - Kolon :",
     .copies = Copies::allButDeleted,
     .emptyList = EmptyList::stays},
    {.prompt = "En az birinin her bir kombinasyon içinde yer almasını istediğiniz ikililerin "
               "sayılarının arasına tire/eksi koyarak ve ikililerin aralarına virgül koyarak "
               "girin.",
     .example = "örnek: 3-7,12-40",
     .read = readPairs,
     .questionOne = "'  ikililerinin hiç bulunmadığı kolonları silmek istiyormusunuz?",
     .questionSeveral = "'  ikililerinin hiç bulunmadığı kolonları silmek istiyormusunuz?",
     .keeps = anyPairIsMarked,
     .firstWord = std::nullopt,
     .phase2 = " Faz 2 - Kolon :",
     .copies = Copies::onlyKept,
     .emptyList = EmptyList::isDeleted},
};

/// The question about `numbers`, which are at least two if they take three characters.
std::string questionOf(const Kind& kind, const std::string& numbers) {
  return "'" + numbers + (numbers.size() >= 3 ? kind.questionSeveral : kind.questionOne);
}

void putWord(ColumnFile& list, std::int64_t number, ColumnRecord record, std::int32_t Word) {
  record.Word = Word;
  list.put(number, record);
}

/// The title after `count` columns "[ of ]".
std::string progress(const char* phase, std::int64_t count, std::int64_t of) {
  std::string text;
  text.reserve(titleRoom);
  text += phase;
  text += withBlank(count);
  text += " [";
  text += withBlank(of);
  return text += " ]";
}

/// Phase 1: marks every record in its word and changes nothing else. Returns how many are kept.
std::int32_t markRecords(const Kind& kind, const FilterMarks& marks, ColumnFile& list,
                         TitleBar& title) {
  const std::int32_t ListCount = list.count();
  std::int32_t KeepCount = ListCount;
  for (std::int64_t number = 1; number <= ListCount; ++number) {
    const ColumnRecord record = list.at(number);
    const bool kept = kind.keeps(marks, record.Balls);
    const std::int32_t Word = kept ? keepWord : deleteWord;
    if (kind.firstWord) putWord(list, number, record, *kind.firstWord);
    if (kind.firstWord != Word) putWord(list, number, record, Word);
    if (!kept) KeepCount -= 1;
    title.setCaption(progress(" FAZ 1 - Kolon :", KeepCount, number));
  }
  return KeepCount;
}

/// Phase 2: copies the kept ones among the marked records.
void copyKept(const Kind& kind, std::int32_t KeepCount, ColumnFile& list, ColumnFile& TmpFileNo,
              TitleBar& title) {
  const std::int32_t ListCount = list.count();
  std::int32_t WrittenCount = 0;
  for (std::int64_t number = 1; number <= ListCount; ++number) {
    const ColumnRecord record = list.at(number);
    const bool copied =
        kind.copies == Copies::onlyKept ? record.Word == keepWord : record.Word != deleteWord;
    if (copied) {
      WrittenCount += 1;
      TmpFileNo.put(WrittenCount, record);
    }
    title.setCaption(progress(kind.phase2, WrittenCount, KeepCount));
  }
}

/// Runs both phases. Returns false if the list turned out to be empty and was not changed.
bool runPhases(const Kind& kind, const FilterMarks& marks, Surroundings& around, TitleBar& title) {
  Files& files = around.files;
  backUpList(around);
  ColumnFile list(around.state, files, combinationList);
  if (list.count() < 1 && kind.emptyList == EmptyList::stays) {
    list.close();
    return false;
  }
  const std::int32_t KeepCount = markRecords(kind, marks, list, title);
  if (KeepCount < 1) {
    list.close();
    files.remove(combinationList);
    return true;
  }
  const ListAndScratch names{combinationList, tmpScratch, ScratchStart::empty};
  replaceList(around, names, [&](ColumnFile& TmpFileNo) {
    copyKept(kind, KeepCount, list, TmpFileNo, title);
    list.close();
  });
  return true;
}

}  // namespace

bool filterList(Filter filter, Surroundings& around, ListPage& page, TitleBar& title) {
  around.boxes.beep();
  if (columnCountOrNone(around.files, combinationList) < 1) return false;
  const Kind& kind = kinds[static_cast<std::size_t>(filter)];
  const std::string InputText = around.boxes.input(kind.prompt, "Kolon SİLME", "", kind.example);
  FilterMarks marks;
  const std::optional<std::string> numbers = kind.read(InputText, marks);
  if (!numbers || !around.boxes.ask(questionOf(kind, *numbers))) return false;
  if (!runPhases(kind, marks, around, title)) return false;
  title.setCaption(listTitle);
  page.PageStart = 1;
  return true;
}

}  // namespace karvenis
