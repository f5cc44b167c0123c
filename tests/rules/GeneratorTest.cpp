#include <gtest/gtest.h>

#include <tuple>

#include "comblist/Generator.h"
#include "doubles/Doubles.h"
#include "doubles/RefusingFiles.h"
#include "doubles/Sets.h"

namespace karvenis {
namespace {

using Mode = Generator::Mode;
using Outcome = Generator::Outcome;

constexpr char outOfRange[] = "En az 1 ve en çok 32767 kolon kayıtlayabilirsiniz!";
constexpr char attention[] = "! DİKKAT !";
constexpr char replaceQuestion[] =
    "Mevcut kombinasyon listesini yenisi ile değiştirmek istiyormusunuz?";

/// A list of `count` records that no generator wrote.
Bytes listOf(int count) {
  return columnBytes(std::vector<ColumnRecord>(
      static_cast<std::size_t>(count), {.Word = -7, .Balls = column(60, 50, 40, 30, 20, 10)}));
}

void putList(World& world, int count) { world.files.folder[combinationList] = listOf(count); }

std::vector<ColumnRecord> list(const World& world) {
  return columnsOf(world.files.bytes(combinationList));
}

/// Whether record `n` (from 1) is one that the generator wrote.
bool isGenerated(const ColumnRecord& record, int n) {
  return record.Word == n && record.Balls.front() >= 1 && record.Balls.back() <= 49 &&
         std::ranges::is_sorted(record.Balls);
}

struct Offer {
  const char* name;
  int bytes;  // of the list; -1: there is none
  bool canAppend;
  const char* forAppend;
  const char* text;
  const char* forNewList;
};

class CountBox : public testing::TestWithParam<Offer> {};

TEST_P(CountBox, OffersWhatFitsTheList) {
  const Offer& offer = GetParam();
  World world;
  if (offer.bytes >= 0) {
    world.files.folder[combinationList].resize(static_cast<std::size_t>(offer.bytes));
  }
  const Generator random(world.around, world.title);
  EXPECT_EQ(random.canAppend(), offer.canAppend);
  EXPECT_EQ(random.countForAppend(), offer.forAppend);
  EXPECT_EQ(random.countForNewList(offer.text), offer.forNewList);
}

INSTANTIATE_TEST_SUITE_P(
    Lists, CountBox,
    testing::Values(Offer{"NoListSevenIsASlip", -1, false, "32767", "7", "32767"},
                    Offer{"NoListEightStays", -1, false, "32767", "8", "8"},
                    Offer{"NoListSevenAndAHalfIsASlip", -1, false, "32767", "7.5", "32767"},
                    Offer{"NoListNoNumber", -1, false, "32767", "abc", "32767"},
                    Offer{"NoListTooLargeStays", -1, false, "32767", "99999999999", "99999999999"},
                    Offer{"EmptyList", 0, false, "32767", "5", "32767"},
                    Offer{"HalfARecordRoundsToNone", 8, false, "32767", "100", "100"},
                    Offer{"OneRecord", 16, true, "32766", "100", "1"},
                    Offer{"MoreThanHalfIsOne", 9, true, "32766", "100", "1"},
                    Offer{"OneAndAHalfIsTwo", 24, true, "32765", "100", "2"},
                    Offer{"TwoAndAHalfIsTwo", 40, true, "32765", "100", "2"},
                    Offer{"OneByteMoreIsThree", 41, true, "32764", "100", "3"},
                    Offer{"TwoAndThreeQuartersIsThree", 44, true, "32764", "100", "3"},
                    Offer{"FiveHundred", 8000, true, "32267", "8", "500"},
                    Offer{"OneBelowTheLimit", 32766 * 16, true, "1", "8", "32766"},
                    Offer{"AtTheLimit", 32767 * 16, false, "0", "8", "32767"},
                    Offer{"BeyondTheLimit", 32768 * 16, false, "-1", "8", "32768"}),
    [](const auto& offer) { return offer.param.name; });

struct Refusal {
  const char* name;
  int existing;
  Mode mode;
  const char* text;
  const char* message;  // empty: only a beep
};

class RefusedCount : public testing::TestWithParam<Refusal> {};

TEST_P(RefusedCount, IsToldAndWritesNothing) {
  const Refusal& refusal = GetParam();
  World world;
  if (refusal.existing > 0) putList(world, refusal.existing);
  const auto before = world.files.folder;
  Generator random(world.around, world.title);
  if (*refusal.message == '\0') {
    world.boxes.expectBeep();
  } else {
    world.boxes.expectWarning(refusal.message, attention);
  }
  EXPECT_EQ(random.start(refusal.mode, refusal.text), Outcome::refused);
  EXPECT_EQ(world.files.folder, before);
  EXPECT_TRUE(world.captions().empty());
  EXPECT_TRUE(world.journal.of("seed").empty());
}

INSTANTIATE_TEST_SUITE_P(
    Counts, RefusedCount,
    testing::Values(
        Refusal{"NewNone", 0, Mode::newList, "0", outOfRange},
        Refusal{"NewNegative", 0, Mode::newList, "-5", outOfRange},
        Refusal{"NewNoNumber", 5, Mode::newList, "abc", outOfRange},
        Refusal{"NewEmpty", 0, Mode::newList, "", outOfRange},
        Refusal{"NewHalfRoundsToNone", 0, Mode::newList, "0.5", outOfRange},
        Refusal{"NewOneTooMany", 0, Mode::newList, "32768", outOfRange},
        Refusal{"NewBlanksInsideMakeItTooLarge", 0, Mode::newList, "32 76 8", outOfRange},
        Refusal{"NewBeyond32Bits", 0, Mode::newList, "99999999999999999999", outOfRange},
        Refusal{"AppendOneTooMany", 500, Mode::append, "32268",
                "En çok 32267 kolon ekleyebilirsiniz!"},
        Refusal{"AppendBeyond32Bits", 500, Mode::append, "99999999999",
                "En çok 32267 kolon ekleyebilirsiniz!"},
        Refusal{"AppendOverTheLimitComesFirst", 32767, Mode::append, "1",
                "En çok 0 kolon ekleyebilirsiniz!"},
        Refusal{"AppendNoneOnlyBeeps", 500, Mode::append, "0", ""},
        Refusal{"AppendNegativeOnlyBeeps", 500, Mode::append, "-99999999999", ""},
        Refusal{"AppendNoNumberOnlyBeeps", 500, Mode::append, "abc", ""}),
    [](const auto& refusal) { return refusal.param.name; });

TEST(GenerateNewList, WritesTheColumnsNumberedAndTellsHowMany) {
  World world;
  Generator random(world.around, world.title);
  std::string captionDuringBox;
  world.boxes.whileOpen = [&] { captionDuringBox = world.captions().back(); };
  world.boxes.expectBeep().expectMessage(" 3 kolon 'KARVENIS.LST' dosyasına kayıtlandı.");
  EXPECT_EQ(random.start(Mode::newList, "3"), Outcome::done);
  ASSERT_EQ(list(world).size(), 3U);
  for (int n = 1; n <= 3; ++n)
    EXPECT_TRUE(isGenerated(list(world)[static_cast<std::size_t>(n - 1)], n));
  EXPECT_EQ(world.captions(), (std::vector<std::string>{"KOLON= 1", "KOLON= 2", "KOLON= 3",
                                                        "6/49 Rastgele Kolon Üreteci"}));
  EXPECT_EQ(captionDuringBox, "KOLON= 3");
  EXPECT_EQ(world.journal.of("seed"), std::vector<std::string>{"1000000"});
  EXPECT_FALSE(world.files.exists(listBackup)) << "there was no list to keep";
  EXPECT_EQ(world.state.FileNo, 0);
  EXPECT_TRUE(world.state.Bag.empty()) << "the bag is not filled on the side";
}

TEST(GenerateNewList, LeavesTheTailOfALongerOldList) {
  World world;
  putList(world, 100);
  Generator random(world.around, world.title);
  world.boxes.expectQuestion(replaceQuestion, true)
      .expectBeep()
      .expectMessage(" 10 kolon 'KARVENIS.LST' dosyasına kayıtlandı.");
  EXPECT_EQ(random.start(Mode::newList, "10"), Outcome::done);
  const auto records = list(world);
  ASSERT_EQ(records.size(), 100U);
  for (int n = 1; n <= 100; ++n) {
    EXPECT_EQ(isGenerated(records[static_cast<std::size_t>(n - 1)], n), n <= 10) << "record " << n;
  }
  EXPECT_EQ(world.files.bytes(listBackup), listOf(100));
}

TEST(GenerateNewList, NoLeavesTheListAsItIs) {
  World world;
  putList(world, 2);
  const auto before = world.files.folder;
  Generator random(world.around, world.title);
  world.boxes.expectQuestion(replaceQuestion, false);
  EXPECT_EQ(random.start(Mode::newList, "10"), Outcome::kept);
  EXPECT_EQ(world.files.folder, before);
  EXPECT_TRUE(world.journal.of("seed").empty());
}

TEST(GenerateNewList, AnEmptyListIsBackedUpWithoutAQuestion) {
  World world;
  putList(world, 0);
  Generator random(world.around, world.title);
  world.boxes.expectBeep().expectMessage(" 1 kolon 'KARVENIS.LST' dosyasına kayıtlandı.");
  std::ignore = random.start(Mode::newList, "1");
  EXPECT_TRUE(world.files.exists(listBackup));
  EXPECT_EQ(list(world).size(), 1U);
}

TEST(GenerateNewList, FillsTheListToTheLimit) {
  World world;
  Generator random(world.around, world.title);
  world.boxes.expectBeep().expectMessage(" 32767 kolon 'KARVENIS.LST' dosyasına kayıtlandı.");
  std::ignore = random.start(Mode::newList, " 32767 kolon");
  ASSERT_EQ(list(world).size(), 32767U);
  EXPECT_TRUE(isGenerated(list(world).back(), 32767));
}

struct Typed {
  const char* text;
  std::size_t columns;
};

TEST(GenerateNewList, RoundsTheCountHalfToEvenAndSkipsBlanks) {
  for (const auto& [text, columns] : {Typed{"2.5", 2}, {"3.5", 4}, {"1 2", 12}, {"+3x", 3}}) {
    World world;
    Generator random(world.around, world.title);
    world.boxes.expectBeep().expectMessage(" " + std::to_string(columns) +
                                           " kolon 'KARVENIS.LST' dosyasına kayıtlandı.");
    std::ignore = random.start(Mode::newList, text);
    EXPECT_EQ(list(world).size(), columns) << text;
  }
}

TEST(GenerateNewList, DrawsFromTheBagAndTheBankosOfTheMoment) {
  World world;
  Generator random(world.around, world.title);
  setBag(world.state, {1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12});
  setBanko(world.state, {49});
  world.boxes.expectBeep().expectMessage(" 200 kolon 'KARVENIS.LST' dosyasına kayıtlandı.");
  std::ignore = random.start(Mode::newList, "200");
  for (const ColumnRecord& record : list(world)) {
    EXPECT_LE(ballAt(record.Balls, 5), 12);
    EXPECT_EQ(ballAt(record.Balls, 6), 49);
  }
}

TEST(AppendToList, WritesBehindTheListAndTakesNoBackup) {
  World world;
  putList(world, 500);
  Generator random(world.around, world.title);
  world.boxes.expectBeep().expectMessage(" 2 kolon 'KARVENIS.LST' dosyasına eklendi.");
  EXPECT_EQ(random.start(Mode::append, "2"), Outcome::done);
  const auto records = list(world);
  ASSERT_EQ(records.size(), 502U);
  EXPECT_EQ(records[499].Word, -7);
  EXPECT_TRUE(isGenerated(records[500], 501));
  EXPECT_TRUE(isGenerated(records[501], 502));
  EXPECT_EQ(world.captions(), (std::vector<std::string>{"KOLON= 501  [1]", "KOLON= 502  [2]",
                                                        "6/49 Rastgele Kolon Üreteci"}));
  EXPECT_EQ(world.journal.of("seed").size(), 1U);
  EXPECT_FALSE(world.files.exists(listBackup));
}

TEST(AppendToList, FillsTheListToTheLimit) {
  World world;
  putList(world, 32766);
  Generator random(world.around, world.title);
  world.boxes.expectBeep().expectMessage(" 1 kolon 'KARVENIS.LST' dosyasına eklendi.");
  EXPECT_EQ(random.start(Mode::append, "1"), Outcome::done);
  EXPECT_EQ(list(world).size(), 32767U);
}

TEST(AppendToList, StartsBehindAListThatGrewMeanwhile) {
  World world;
  putList(world, 10);
  Generator random(world.around, world.title);
  putList(world, 20);
  world.boxes.expectBeep().expectMessage(" 5 kolon 'KARVENIS.LST' dosyasına eklendi.");
  std::ignore = random.start(Mode::append, "5");
  EXPECT_EQ(list(world).size(), 25U);
  EXPECT_EQ(world.captions().front(), "KOLON= 21  [1]");
}

TEST(AppendToList, MakesAListThatVanishedMeanwhile) {
  World world;
  putList(world, 10);
  Generator random(world.around, world.title);
  world.files.folder.clear();
  world.boxes.expectBeep().expectMessage(" 5 kolon 'KARVENIS.LST' dosyasına eklendi.");
  std::ignore = random.start(Mode::append, "5");
  EXPECT_EQ(list(world).size(), 5U);
}

TEST(AppendToList, StartsBehindTheRecordsThatARaggedListCountsAs) {
  for (const auto& [bytes, start] : {std::pair{9U, 1}, std::pair{24U, 2}, std::pair{40U, 2},
                                     std::pair{41U, 3}, std::pair{44U, 3}}) {
    World world;
    world.files.folder[combinationList].resize(bytes);
    Generator random(world.around, world.title);
    world.boxes.expectBeep().expectMessage(" 1 kolon 'KARVENIS.LST' dosyasına eklendi.");
    std::ignore = random.start(Mode::append, "1");
    EXPECT_EQ(world.captions().front(), "KOLON= " + std::to_string(start + 1) + "  [1]");
    const auto records = list(world);
    ASSERT_EQ(records.size(), static_cast<std::size_t>(start + 1)) << bytes;
    EXPECT_TRUE(isGenerated(records.back(), start + 1)) << bytes;
  }
}

TEST(AppendToList, IsLimitedByTheCountOfTheLoading) {
  World world;
  putList(world, 10);
  Generator random(world.around, world.title);
  putList(world, 20);
  world.boxes.expectWarning("En çok 32757 kolon ekleyebilirsiniz!", attention);
  EXPECT_EQ(random.start(Mode::append, "32758"), Outcome::refused);
}

TEST(GenerateNewList, AsksByTheCountOfTheLoading) {
  World appeared;
  Generator overNone(appeared.around, appeared.title);
  putList(appeared, 5);
  appeared.boxes.expectBeep().expectMessage(" 1 kolon 'KARVENIS.LST' dosyasına kayıtlandı.");
  EXPECT_EQ(overNone.start(Mode::newList, "1"), Outcome::done);
  EXPECT_EQ(appeared.files.bytes(listBackup), listOf(5));

  World vanished;
  putList(vanished, 5);
  Generator overFive(vanished.around, vanished.title);
  vanished.files.folder.clear();
  vanished.boxes.expectQuestion(replaceQuestion, false);
  EXPECT_EQ(overFive.start(Mode::newList, "1"), Outcome::kept);
}

/// Appends `wanted` columns to a list that has grown to `grown` records; whether that overflowed.
bool overflows(World& world, int grown, const char* wanted) {
  putList(world, 10);
  Generator random(world.around, world.title);
  putList(world, grown);
  try {
    std::ignore = random.start(Mode::append, wanted);
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.fault(), Fault::overflow);
    EXPECT_FALSE(world.files.exists(tmpScratch)) << "nor its growth";
    return true;
  }
  return false;
}

TEST(AppendToList, ARecordNumberBeyondTheLimitIsAFaultAndTheListStays) {
  World world;
  EXPECT_TRUE(overflows(world, 32766, "2"));
  EXPECT_EQ(list(world).size(), 32766U);
  World full;
  EXPECT_TRUE(overflows(full, 32767, "1"));
  EXPECT_EQ(list(full).size(), 32767U);
  World longer;
  EXPECT_TRUE(overflows(longer, 40000, "1"));
  EXPECT_EQ(list(longer).size(), 40000U);
}

TEST(GenerateNewList, ARefusalAtAnyStepLeavesTheOldListInTheBackupOrInPlace) {
  int refusals = 0;
  for (int failing = 1;; ++failing) {
    QuietWorld world;
    world.files.folder[combinationList] = listOf(3);
    RefusingFiles files(world.files);
    Surroundings around = world.over(files);
    Generator random(around, world.title);
    files.calls = 0;
    files.refuses = [&](Fault, const std::string&) { return files.calls == failing; };
    try {
      std::ignore = random.start(Mode::newList, "2");
      break;
    } catch (const RunTimeError&) {
      ++refusals;
    }
    EXPECT_TRUE(world.files.bytes(listBackup) == listOf(3) ||
                world.files.bytes(combinationList) == listOf(3));
    EXPECT_FALSE(world.files.exists(tmpScratch));
  }
  EXPECT_GE(refusals, 4);
}

}  // namespace
}  // namespace karvenis
