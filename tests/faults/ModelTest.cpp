#include <gtest/gtest.h>

#include <algorithm>
#include <random>
#include <tuple>

#include "comblist/CombinationList.h"
#include "comblist/Filters.h"
#include "comblist/Generator.h"
#include "core/Draw.h"
#include "doubles/Doubles.h"
#include "doubles/Lists.h"
#include "faults/DiskFolder.h"
#include "listing/Listing.h"
#include "main/NewColumn.h"
#include "randomlist/ColumnDeletion.h"
#include "randomlist/RandomColumnFile.h"
#include "randomlist/RandomColumnList.h"

namespace karvenis {
namespace {

std::optional<Columns> columnsIn(const MemoryFiles& files, const char* name) {
  const auto found = files.folder.find(name);
  if (found == files.folder.end()) return std::nullopt;
  return columnsOf(found->second);
}

/// Random actions on the rules and, beside each, what it means in the model.
class Walk {
 public:
  explicit Walk(unsigned seed) : random_(seed) {}

  void step() {
    static constexpr void (Walk::*moves[])() = {
        &Walk::save,         &Walk::save,       &Walk::save,    &Walk::deleteKept,
        &Walk::append,       &Walk::saveAs,     &Walk::rename,  &Walk::deleteKeptFile,
        &Walk::deleteListed, &Walk::deleteList, &Walk::copy,    &Walk::generate,
        &Walk::addRandom,    &Walk::unwanted,   &Walk::wanted,  &Walk::unwantedPair,
        &Walk::wantedPairs,  &Walk::writeText,  &Walk::pickOne,
    };
    (this->*moves[below(std::size(moves))])();
  }
  /// What differs between the files and the model; empty if nothing does.
  std::string difference() const {
    if (columnsIn(world_.files, randomColumns) != model_.kept) return "kept columns";
    if (columnsIn(world_.files, combinationList) != model_.list) return "list";
    if (columnsIn(world_.files, listBackup) != model_.backup) return "backup";
    for (const char* scratch : {"KARVENIS.YND", "KARVENIS.YLS", "KARVENIS.TMP"}) {
      if (world_.files.folder.contains(scratch)) return scratch;
    }
    return {};
  }
  const std::string& last() const { return last_; }

 private:
  std::size_t below(std::size_t count) { return random_() % count; }
  std::int16_t ball() { return static_cast<std::int16_t>(1 + below(49)); }
  void move(const char* name) { last_ = name; }
  void says(bool yes) { world_.boxes.says = yes; }

  void save() {
    move("save");
    for (auto& drawn : world_.state.Drawn) drawn = ball();
    saveRndColumn(world_.around, world_.title, false);
    std::ranges::sort(world_.state.Drawn);
    if (Lists::count(model_.kept) < recordLimit) model_.keep(world_.state.Drawn);
  }
  void deleteKept() {
    move("delete a kept column");
    ColumnDeletion deletion(world_.around);
    if (!deletion.load()) return;
    const std::size_t count = model_.kept->size();
    const std::size_t number = below(count + 2);
    std::ignore = deletion.remove(static_cast<std::int32_t>(number));
    if (number >= 1 && number <= count) model_.removeKept(number);
  }
  void append() {
    move("append");
    says(below(4) != 0);
    ListPage page;
    appendToCombinationList(world_.around, page);
    if (world_.boxes.says && Lists::any(model_.kept)) model_.append();
  }
  void saveAs() {
    move("save as");
    if (!model_.kept) return;
    says(below(4) != 0);
    saveAsCombinationList(world_.around);
    if (world_.boxes.says) model_.saveAsList();
  }
  void rename() {
    move("rename");
    if (below(8) != 0) return;
    says(below(2) != 0);
    changeRndFile(world_.around, world_.title);
    if (model_.kept && world_.boxes.says) model_.renameToList();
  }
  void deleteKeptFile() {
    move("delete the kept columns");
    if (below(8) != 0) return;
    says(below(2) != 0);
    if (below(2) != 0) {
      deleteRndFile(world_.around, world_.title);
    } else {
      askAndDeleteRndFile(world_.around);
    }
    if (world_.boxes.says) model_.kept.reset();
  }
  void deleteListed() {
    move("delete a listed column");
    const std::size_t count = Lists::count(model_.list);
    const std::size_t number = below(count + 2);
    world_.boxes.typed = std::to_string(number);
    ListPage page;
    DeleteColumn(world_.around, page);
    if (number >= 1 && number <= count) model_.removeListed(number);
  }
  void deleteList() {
    move("delete the list");
    if (below(8) != 0) return;
    says(below(2) != 0);
    karvenis::deleteList(world_.around);
    if (world_.boxes.says) model_.list.reset();
  }
  void copy() {
    move("copy to the kept columns");
    says(below(4) != 0);
    std::ignore = copyToRandomColumns(world_.around);
    if (Lists::any(model_.list) && (world_.boxes.says || !model_.kept)) model_.kept = model_.list;
  }
  void generate() {
    move("generate");
    makeColumns(Generator::Mode::newList);
  }
  void addRandom() {
    move("generate more");
    makeColumns(Generator::Mode::append);
  }
  /// The balls are chance's: the model takes them over where they can be ones, and knows the rest.
  void makeColumns(Generator::Mode mode) {
    const std::size_t wanted = below(40);
    const std::size_t start = mode == Generator::Mode::append ? Lists::count(model_.list) : 0;
    says(below(4) != 0);
    Generator random(world_.around, world_.title);
    const auto outcome = random.start(mode, std::to_string(wanted));
    const bool asked = mode == Generator::Mode::newList && Lists::any(model_.list);
    const bool done = wanted > 0 && (!asked || world_.boxes.says) && start + wanted <= recordLimit;
    EXPECT_EQ(outcome == Generator::Outcome::done, done);
    if (!done) return;
    if (mode == Generator::Mode::newList) model_.backUp();
    const auto now = columnsIn(world_.files, combinationList).value_or(Columns());
    model_.generated(start + 1, wanted, now);
    for (std::size_t i = start; i < start + wanted && i < now.size(); ++i) {
      EXPECT_TRUE(std::ranges::is_sorted(now[i].Balls));
    }
  }
  void thinOut(Filter filter, const std::string& typed,
               const std::function<bool(const Column&)>& keeps) {
    world_.boxes.typed = typed;
    says(below(6) != 0);
    ListPage page;
    filterList(filter, world_.around, page, world_.title);
    if (Lists::any(model_.list) && world_.boxes.says) model_.thinOut(keeps);
  }
  void unwanted() {
    move("delete unwanted numbers");
    const std::int16_t a = ball(), b = ball();
    thinOut(Filter::FilterUnwantedNumbers, std::to_string(a) + ", " + std::to_string(b),
            [=](const Column& column) {
              return lacksAll(column, {a, b});
            });
  }
  void wanted() {
    move("keep wanted numbers");
    std::string typed;
    std::vector<std::int16_t> balls;
    for (int i = 0; i < 15; ++i) {
      balls.push_back(ball());
      typed += std::to_string(balls.back()) + (i < 14 ? "," : "");
    }
    thinOut(Filter::FilterWantedNumbers, typed,
            [&](const Column& column) { return hasWanted(column, balls); });
  }
  void unwantedPair() {
    move("delete an unwanted pair");
    const std::int16_t a = ball();
    const auto b = static_cast<std::int16_t>(a % 49 + 1);
    thinOut(Filter::FilterUnwantedPair, std::to_string(a) + "-" + std::to_string(b),
            [=](const Column& column) { return !hasBoth(column, a, b); });
  }
  void wantedPairs() {
    move("keep wanted pairs");
    std::string typed;
    Pairs pairs;
    for (int i = 0; i < 60; ++i) {
      const std::int16_t a = ball();
      const auto b = static_cast<std::int16_t>(a % 49 + 1);
      pairs.emplace_back(a, b);
      typed += std::to_string(a) + "-" + std::to_string(b) + (i < 59 ? "," : "");
    }
    thinOut(Filter::FilterWantedPairs, typed,
            [&](const Column& column) { return hasAnyPair(column, pairs); });
  }
  void writeText() {
    move("write a text");
    says(true);
    const auto write = [&] { listRandomColumns(world_.around, world_.title, Output::text); };
    if (Lists::count(model_.kept) > recordLimit) {  // listings count in 16 bits
      EXPECT_THROW(write(), RunTimeError);
      return;
    }
    write();
    const std::string text = world_.files.text("KARVENIS.TXT");
    if (Lists::any(model_.kept)) {
      EXPECT_NE(text.find("< Toplam " + std::to_string(model_.kept->size()) + " kolon. >"),
                std::string::npos);
    }
  }
  void pickOne() {
    move("pick from the list");
    const auto pick = PickFromList(world_.around);
    EXPECT_EQ(pick.has_value(), Lists::any(model_.list));
    if (pick) {
      EXPECT_EQ(world_.state.Drawn,
                (*model_.list)[static_cast<std::size_t>(pick->record - 1)].Balls);
    }
  }

  std::mt19937 random_;
  QuietWorld world_;
  Lists model_;
  std::string last_;
};

/// KARVENIS_ROUNDS=100000 is the long form.
TEST(Model, RandomActionsDoWhatTheModelDoes) {
  Walk walk(2005);
  for (int i = 0; i < rounds(3000); ++i) {
    walk.step();
    ASSERT_EQ(walk.difference(), "") << "step " << i << ": " << walk.last();
    ASSERT_FALSE(HasFailure()) << "step " << i << ": " << walk.last();
  }
}

}  // namespace
}  // namespace karvenis
