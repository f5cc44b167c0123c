#include <gtest/gtest.h>

#include "comblist/CombinationList.h"
#include "core/ColumnFile.h"
#include "doubles/Doubles.h"
#include "doubles/FailingFiles.h"
#include "doubles/RecordingSurface.h"
#include "faults/DiskFolder.h"
#include "platform/SystemFiles.h"
#include "randomlist/RandomColumnList.h"

namespace karvenis {
namespace {

/// Runs the action; a fault is an allowed end, anything else is not.
void survive(const Action& action, Files& files) {
  try {
    perform(action, files);
  } catch (const RunTimeError&) {
    // The closing box comes here.
  }
}

/// The generator does much and reads little; one of its ways is enough here.
bool isLong(const Action& action) {
  const std::string name = action.name;
  return name.starts_with("generate") && name != "generate a shorter list";
}

/// Puts every command through with `damaged` in the place of every file, or of `only` one.
void surviveEverywhere(const Bytes& damaged, const char* only = nullptr) {
  for (const Action& action : actions()) {
    const bool reads = only == nullptr || std::string(action.name).find("ba") != std::string::npos;
    if (isLong(action) || !reads) continue;
    MemoryFiles files;
    for (const auto& [name, bytes] : *action.start) {
      files.folder[name] = only == nullptr || name == only ? damaged : bytes;
    }
    survive(action, files);
  }
}

TEST(DamagedFiles, EveryLengthPassesEveryCommand) {
  for (std::size_t length = 0; length <= 160; ++length) {
    surviveEverywhere(Bytes(length, static_cast<std::byte>(length)));
  }
}

TEST(DamagedFiles, EveryFlippedBitOfAListPassesEveryCommand) {
  const Bytes sound = countedColumns(10);
  const std::size_t step = rounds(1) > 1 ? 1 : 7;  // the long form tries them all
  for (std::size_t bit = 0; bit < sound.size() * 8; bit += step) {
    Bytes damaged = sound;
    damaged[bit / 8] ^= static_cast<std::byte>(1U << (bit % 8));
    surviveEverywhere(damaged);
  }
}

TEST(DamagedFiles, EveryFlippedBitOfAListShowsAndDrawsOrFaultsInOrder) {
  const Bytes sound = countedColumns(10);
  for (std::size_t bit = 0; bit < sound.size() * 8; ++bit) {
    Bytes damaged = sound;
    damaged[bit / 8] ^= static_cast<std::byte>(1U << (bit % 8));
    for (const Action& action : actions()) {
      const std::string name = action.name;
      if (name != "show the kept columns" && name != "show the list" &&
          name != "draw from the list")
        continue;
      MemoryFiles files;
      files.folder = {{randomColumns, damaged}, {combinationList, damaged}};
      const Folder before = files.folder;
      survive(action, files);
      EXPECT_EQ(files.folder, before) << name << " changed a byte, bit " << bit;
    }
  }
}

TEST(DamagedFiles, BallsThatAreNoBallsPassEveryCommand) {
  for (const int ball : {-32768, -1, 0, 50, 32767}) {
    const auto odd = static_cast<std::int16_t>(ball);
    for (int place = 1; place <= 6; ++place) {
      ColumnRecord record{1, column(1, 2, 3, 4, 5, 6)};
      ballAt(record.Balls, place) = odd;
      surviveEverywhere(columnBytes({{7, column(8, 9, 10, 11, 12, 13)}, record}));
    }
    surviveEverywhere(columnBytes({{ball, column(odd, odd, odd, odd, odd, odd)}}));
  }
}

TEST(DamagedFiles, EveryBagFileOfTwoWordsPassesEveryCommand) {
  for (const int count : {-32768, -1, 0, 1, 5, 6, 49, 50, 51, 32767}) {
    for (const int ball : {-32768, -1, 0, 1, 49, 50, 32767}) {
      std::vector<int> all(120, ball);
      all[0] = all[50] = count;
      surviveEverywhere(words(all), "KARVENIS.DAT");
    }
  }
}

struct Length {
  const char* name;
  std::int32_t records;
};
class LongList : public testing::TestWithParam<Length> {};

/// Commands keep lists of any length: only the save and the generator refuse beyond 32767.
TEST_P(LongList, PassesEveryCommand) {
  const Bytes list = countedColumns(GetParam().records);
  for (const Action& action : actions()) {
    MemoryFiles files;
    files.folder = *action.start;
    for (const char* name : {randomColumns, combinationList}) {
      if (action.start->contains(name)) files.folder[name] = list;
    }
    survive(action, files);
  }
}

INSTANTIATE_TEST_SUITE_P(Around, LongList,
                         testing::Values(Length{"OneBelowTheLimit", 32766},
                                         Length{"TheLimit", 32767}, Length{"OneBeyond", 32768},
                                         Length{"FarBeyond", 70000}),
                         [](const auto& length) { return length.param.name; });

/// A page of a huge sparse list costs as little as any other: only its block is read.
TEST(HugeList, ShowsAPageAtOnce) {
  DiskFolder folder;
  SystemFiles disk;
  FailingFiles files(disk);  // counts the calls
  constexpr std::uintmax_t bytes = std::uintmax_t{1} << 30;
  for (const char* name : {randomColumns, combinationList}) {
    folder.put(name, {});
    std::filesystem::resize_file(folder.path() / name, bytes);
  }
  World world;
  Surroundings around = world.over(files);
  RecordingSurface surface;
  ListPage page{.PageStart = (1 << 26) - 30};
  ShowRndPage(around, page, surface, world.title);
  EXPECT_EQ(page.PageRows, rowsOnPage);
  page = {.PageStart = 40'000'000};
  ShowPage(around, page, surface, world.title);
  EXPECT_EQ(page.PageRows, rowsOnPage);
  EXPECT_LT(files.calls(), 20);
  EXPECT_EQ(std::filesystem::file_size(randomColumns), bytes);
}

}  // namespace
}  // namespace karvenis
