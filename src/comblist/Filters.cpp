#include "comblist/Filters.h"

#include <algorithm>
#include <optional>
#include <string>

#include "comblist/FilterInput.h"
#include "core/CaptionLine.h"
#include "core/ColumnFile.h"
#include "core/Numbers.h"

namespace karvenis {
namespace {

/// The words that the first pass marks records with.
constexpr std::int32_t keepWord = 417;
constexpr std::int32_t deleteWord = -1;

bool hasNoneMarked(const FilterMarks& marks, const Column& column) {
  return std::ranges::none_of(column, [&](std::int16_t ball) { return marks.has(ball); });
}

/// The third ball is not looked up but compared with the mark itself, so that it never counts.
bool hasAnyMarked(const FilterMarks& marks, const Column& column) {
  const auto [b1, b2, b3, b4, b5, b6] = column;
  return marks.has(b1) || marks.has(b2) || b3 == FilterMarks::set || marks.has(b4) ||
         marks.has(b5) || marks.has(b6);
}

bool hasAtMostOneMarked(const FilterMarks& marks, const Column& column) {
  return std::ranges::count_if(column, [&](std::int16_t ball) { return marks.has(ball); }) <= 1;
}

bool hasAnyPair(const FilterMarks& marks, const Column& column) {
  for (std::size_t i = 0; i < column.size(); ++i) {
    for (std::size_t j = i + 1; j < column.size(); ++j) {
      if (marks.hasPair(column[i], column[j])) return true;
    }
  }
  return false;
}

bool isNotDeleted(std::int32_t Word) { return Word != deleteWord; }
bool isKept(std::int32_t Word) { return Word == keepWord; }

enum class OnEmptyList { stop, remove };
enum class LastStep { copyBack, rename };

/// What one filter does in its own way.
struct Kind {
  const char* prompt;
  std::optional<std::string> (*read)(const std::string& InputText, FilterMarks& marks);
  const char* questionOne;      // follows the quoted list: of one number,
  const char* questionSeveral;  // of several
  bool (*keeps)(const FilterMarks& marks, const Column& column);
  std::optional<std::int32_t> firstWord;  // every record's before it is judged; none: one write
  bool (*copies)(std::int32_t Word);
  const char* secondPass;
  OnEmptyList onEmptyList;  // where the list lost its records while the question was open
  LastStep lastStep;
};

constexpr Kind kinds[] = {
    {.prompt = "İstemediğiniz sayıları (aralarına virgül koyarak) girin.",
     .read = readNumbers,
     .questionOne = "' numaralı topun yer aldığı kolonları silmek istiyormusunuz?",
     .questionSeveral = "' numaralı topların yer aldığı kolonları silmek istiyormusunuz?",
     .keeps = hasNoneMarked,
     .firstWord = keepWord,
     .copies = isNotDeleted,
     .secondPass = " Faz 2 - Kolon :",
     .onEmptyList = OnEmptyList::stop,
     .lastStep = LastStep::copyBack},
    {.prompt = "İstediğiniz sayıları (aralarına virgül koyarak) girin.\r"
               "(Herhangi biri olan kolonlar seçilecek.)",
     .read = readNumbers,
     .questionOne = "' numaralı topun yer almadığı kolonları silmek istiyormusunuz?",
     .questionSeveral = "' numaralı topların hiç birinin yer almadığı kolonları silmek "
                        "istiyormusunuz?",
     .keeps = hasAnyMarked,
     .firstWord = deleteWord,
     .copies = isNotDeleted,
     .secondPass = " FAZ 2 - Kolon :",
     .onEmptyList = OnEmptyList::stop,
     .lastStep = LastStep::copyBack},
    {.prompt = "İstemediğiniz ikiliyi (sayıların arasına tire/eksi işareti koyarak) girin.",
     .read = readPair,
     .questionOne = "' numaralı topların (ikisinin de) yer aldığı kolonları silmek "
                    "istiyormusunuz?",
     .questionSeveral = "' numaralı topların (ikisinin de) yer aldığı kolonları silmek "
                        "istiyormusunuz?",
     .keeps = hasAtMostOneMarked,
     .firstWord = keepWord,
     .copies = isNotDeleted,
     .secondPass = " Faz 2 - Kolon :",
     .onEmptyList = OnEmptyList::stop,
     .lastStep = LastStep::rename},
    {.prompt = "En az birinin her bir kombinasyon içinde yer almasını istediğiniz ikililerin "
               "sayılarının arasına tire/eksi koyarak ve ikililerin aralarına virgül koyarak "
               "girin.",
     .read = readPairs,
     .questionOne = "'  ikililerinin hiç bulunmadığı kolonları silmek istiyormusunuz?",
     .questionSeveral = "'  ikililerinin hiç bulunmadığı kolonları silmek istiyormusunuz?",
     .keeps = hasAnyPair,
     .firstWord = std::nullopt,
     .copies = isKept,
     .secondPass = " Faz 2 - Kolon :",
     .onEmptyList = OnEmptyList::remove,
     .lastStep = LastStep::copyBack},
};

/// The question about `list`; from three characters on it holds two numbers at least.
std::string questionOf(const Kind& kind, const std::string& list) {
  return "'" + list + (list.size() >= 3 ? kind.questionSeveral : kind.questionOne);
}

/// The two passes over the list.
class Rewrite {
 public:
  Rewrite(const Kind& kind, const FilterMarks& marks, Surroundings& around, TitleBar& title)
      : kind_(kind), marks_(marks), state_(around.state), files_(around.files), title_(title) {}

  /// False where the list turned out to be empty and was left alone.
  bool run() {
    files_.copy(combinationList, listBackup);
    ColumnFile list(state_, files_, combinationList);
    ListCount = list.count();
    if (ListCount < 1 && kind_.onEmptyList == OnEmptyList::stop) {
      list.close();
      return false;
    }
    markRecords(list);
    if (KeepCount < 1) {
      list.close();
      files_.remove(combinationList);
    } else {
      copyKept(list);
      replaceList();
    }
    title_.setCaption(listTitle);
    return true;
  }

 private:
  void markRecords(ColumnFile& list) {
    KeepCount = ListCount;
    for (std::int64_t number = 1; number <= ListCount; ++number) {
      ColumnRecord record = list.at(number);
      if (kind_.firstWord) {
        record.Word = *kind_.firstWord;
        list.put(number, record);
      }
      const bool kept = kind_.keeps(marks_, record.Balls);
      const std::int32_t Word = kept ? keepWord : deleteWord;
      if (kind_.firstWord != Word) {
        record.Word = Word;
        list.put(number, record);
      }
      if (!kept) KeepCount -= 1;
      show(" FAZ 1 - Kolon :", KeepCount, number);
    }
  }

  void copyKept(ColumnFile& list) {
    startScratch(files_, tmpScratch);
    ColumnFile TmpFileNo(state_, files_, tmpScratch);
    std::int32_t WrittenCount = 0;
    for (std::int64_t number = 1; number <= ListCount; ++number) {
      const ColumnRecord record = list.at(number);
      if (kind_.copies(record.Word)) {
        WrittenCount += 1;
        TmpFileNo.put(WrittenCount, record);
      }
      show(kind_.secondPass, WrittenCount, KeepCount);
    }
    list.close();
    TmpFileNo.close();
  }

  /// Both ways leave the list with its old or its new bytes at every moment.
  void replaceList() {
    if (kind_.lastStep == LastStep::rename) {
      files_.rename(tmpScratch, combinationList);
      return;
    }
    files_.copy(tmpScratch, combinationList);
    files_.remove(tmpScratch);
  }

  void show(const char* pass, std::int64_t first, std::int64_t second) {
    caption_.start(pass).addWithBlank(first).add(" [").addWithBlank(second).add(" ]");
    title_.setCaption(caption_.text());
  }

  const Kind& kind_;
  const FilterMarks& marks_;
  SharedState& state_;
  Files& files_;
  TitleBar& title_;
  CaptionLine caption_;
  std::int32_t ListCount = 0;  // records in the list
  std::int32_t KeepCount = 0;  // columns still kept
};

}  // namespace

bool filterList(Filter filter, Surroundings& around, TitleBar& title) {
  const Kind& kind = kinds[static_cast<std::size_t>(filter)];
  if (!around.files.exists(combinationList)) return false;
  if (columnCount(around.files, combinationList) < 1) return false;
  const std::string InputText = around.boxes.input(kind.prompt, "Kolon SİLME", "");
  FilterMarks marks;
  const std::optional<std::string> shown = kind.read(InputText, marks);
  if (!shown) return false;
  if (!around.boxes.ask(questionOf(kind, *shown))) return false;
  return Rewrite(kind, marks, around, title).run();
}

}  // namespace karvenis
