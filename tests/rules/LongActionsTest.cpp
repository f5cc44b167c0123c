#include <gtest/gtest.h>

#include <tuple>

#include "comblist/CombinationList.h"
#include "comblist/Filters.h"
#include "comblist/Generator.h"
#include "doubles/Doubles.h"
#include "doubles/RecordingSurface.h"
#include "doubles/RefusingFiles.h"
#include "listing/Listing.h"
#include "main/NewColumn.h"
#include "randomlist/ColumnDeletion.h"
#include "randomlist/RandomColumnFile.h"
#include "randomlist/RandomColumnList.h"

// What the user presses while an action works through a list is dropped; what he presses during any
// other is not.

namespace karvenis {
namespace {

struct Action {
  const char* name;
  const char* typed;  // into the input box
  std::function<void(Surroundings&, TitleBar&)> run;
};

/// Three columns in each list, and a user who agrees to everything.
struct Desk : QuietWorld {
  RefusingFiles watched{files};
  int filesTouchedTooEarly = 0;

  explicit Desk(const Action& action) {
    files.folder = {{randomColumns, countedColumns(3)}, {combinationList, countedColumns(3)}};
    state.Drawn = column(1, 2, 3, 4, 5, 6);
    boxes.typed = action.typed;
    watched.refuses = [this](Fault fault, const std::string& name) {
      // Whether the list is protected is asked first of all, as a write.
      const bool asks = fault == Fault::write && name == combinationList;
      const bool changes = fault == Fault::copy || fault == Fault::write || fault == Fault::rename;
      if (changes && !asks && windows.drops == 0) ++filesTouchedTooEarly;
      return false;
    };
    Surroundings watching = over(watched);
    action.run(watching, title);
  }
};

Action filter(const char* name, Filter which, const char* typed) {
  return {name, typed, [which](Surroundings& around, TitleBar& title) {
            ListPage page;
            filterList(which, around, page, title);
          }};
}
Action generate(const char* name, Generator::Mode mode) {
  return {name, "", [mode](Surroundings& around, TitleBar& title) {
            std::ignore = Generator(around, title).start(mode, "2");
          }};
}
Action list(const char* name, Output output) {
  return {name, "", [output](Surroundings& around, TitleBar& title) {
            listRandomColumns(around, title, output);
            std::ignore = listCombinations(around, title, output, {1, 3});
          }};
}

std::string nameOf(const testing::TestParamInfo<Action>& row) { return row.param.name; }

class LongAction : public testing::TestWithParam<Action> {};

TEST_P(LongAction, DropsInputBeforeItTouchesAList) {
  const Desk desk(GetParam());
  EXPECT_GT(desk.windows.drops, 0);
  EXPECT_EQ(desk.filesTouchedTooEarly, 0);
}

INSTANTIATE_TEST_SUITE_P(
    Each, LongAction,
    testing::Values(
        Action{"MakesTheKeptColumnsTheList", "",
               [](Surroundings& around, TitleBar& title) { changeRndFile(around, title); }},
        Action{"AppendsTheKeptColumns", "",
               [](Surroundings& around, TitleBar&) {
                 ListPage page;
                 appendToCombinationList(around, page);
               }},
        Action{"SavesTheKeptColumnsAsTheList", "",
               [](Surroundings& around, TitleBar&) { saveAsCombinationList(around); }},
        Action{"DeletesAKeptColumn", "",
               [](Surroundings& around, TitleBar&) {
                 ColumnDeletion deletion(around);
                 std::ignore = deletion.load();
                 std::ignore = deletion.remove(2);
               }},
        generate("GeneratesAList", Generator::Mode::newList),
        generate("GeneratesMoreColumns", Generator::Mode::append),
        Action{"CopiesTheListToTheKeptColumns", "",
               [](Surroundings& around, TitleBar&) { std::ignore = copyToRandomColumns(around); }},
        Action{"DeletesAColumnOfTheList", "2",
               [](Surroundings& around, TitleBar&) {
                 ListPage page;
                 DeleteColumn(around, page);
               }},
        filter("FiltersUnwantedNumbers", Filter::FilterUnwantedNumbers, "6"),
        filter("FiltersWantedNumbers", Filter::FilterWantedNumbers, "6"),
        filter("FiltersAllAway", Filter::FilterWantedNumbers, "49"),
        filter("FiltersAnUnwantedPair", Filter::FilterUnwantedPair, "1-6"),
        filter("FiltersWantedPairs", Filter::FilterWantedPairs, "1-6"),
        list("WritesTheLists", Output::text), list("PrintsTheLists", Output::printer)),
    nameOf);

class ShortAction : public testing::TestWithParam<Action> {};

TEST_P(ShortAction, DropsNothing) { EXPECT_EQ(Desk(GetParam()).windows.drops, 0); }

INSTANTIATE_TEST_SUITE_P(
    Each, ShortAction,
    testing::Values(
        Action{"KeepsAColumn", "",
               [](Surroundings& around, TitleBar& title) { saveRndColumn(around, title, false); }},
        Action{"PicksAColumn", "",
               [](Surroundings& around, TitleBar&) { std::ignore = PickFromList(around); }},
        Action{"DeletesTheKeptColumns", "",
               [](Surroundings& around, TitleBar& title) { deleteRndFile(around, title); }},
        Action{"DeletesTheList", "", [](Surroundings& around, TitleBar&) { deleteList(around); }},
        Action{"ShowsAPage", "",
               [](Surroundings& around, TitleBar& title) {
                 ListPage page;
                 RecordingSurface surface;
                 ShowPage(around, page, surface, title);
                 ShowRndPage(around, page, surface, title);
               }}),
    nameOf);

}  // namespace
}  // namespace karvenis
