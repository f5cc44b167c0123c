#include "faults/Actions.h"

#include <algorithm>
#include <tuple>

#include "bag/BagFile.h"
#include "bag/MainWindowLoads.h"
#include "comblist/CombinationList.h"
#include "comblist/Filters.h"
#include "comblist/Generator.h"
#include "doubles/Doubles.h"
#include "doubles/PlainButtons.h"
#include "doubles/PlainFields.h"
#include "doubles/RecordingSurface.h"
#include "listing/Listing.h"
#include "main/NewColumn.h"
#include "main/Settings.h"
#include "randomlist/ColumnDeletion.h"
#include "randomlist/RandomColumnFile.h"
#include "randomlist/RandomColumnList.h"

namespace karvenis {
namespace {

constexpr std::int32_t longList = 4100;  // a block holds 4096
constexpr char textFile[] = "KARVENIS.TXT";

PlainFields twoBankos() {
  PlainFields fields;
  fields.chosen = 2;
  fields.texts = {"11", "12"};
  return fields;
}

Bytes bagBytes() {
  std::vector<int> all(50, 0);
  const std::vector<int> bag{7, 4, 8, 15, 16, 23, 42, 49};
  std::ranges::copy(bag, all.begin());
  all.insert(all.end(), {2, 5, 6});
  return words(all);
}

using SharedFolder = std::shared_ptr<const Folder>;

/// A folder in which every file of the program stands.
SharedFolder full(std::int32_t kept = longList, std::int32_t listed = longList) {
  static std::map<std::pair<std::int32_t, std::int32_t>, SharedFolder> made;
  SharedFolder& folder = made[{kept, listed}];
  if (!folder) {
    folder = std::make_shared<Folder>(Folder{{randomColumns, countedColumns(kept, 0)},
                                             {combinationList, countedColumns(listed, 1)},
                                             {listBackup, countedColumns(3, 1000)},
                                             {bagFileName, bagBytes()},
                                             {settingsFile, hex("00 00 c8 42 00 00 48 43")},
                                             {textFile, hex("41 42 43")}});
  }
  return folder;
}

/// The full folder without the file `name`.
SharedFolder without(const std::string& name) {
  Folder folder = *full();
  folder.erase(name);
  return std::make_shared<Folder>(std::move(folder));
}

/// A command that needs no title.
template <auto command>
void alone(Surroundings& around, TitleBar&) {
  static_cast<void>(command(around));
}

void writeThePlace(Surroundings& around, TitleBar&) { writePlace(around.files, {1, 2}); }
void readThePlace(Surroundings& around, TitleBar&) { std::ignore = readPlace(around.files); }

template <Output output>
void listKept(Surroundings& around, TitleBar& title) {
  listRandomColumns(around, title, output);
}

void save(Surroundings& around, TitleBar& title) {
  around.state.Drawn = column(45, 7, 3, 21, 30, 12);
  saveRndColumn(around, title, false);
}

void appendList(Surroundings& around, TitleBar&) {
  ListPage page;
  appendToCombinationList(around, page);
}

void deleteKept(Surroundings& around, TitleBar&) {
  ColumnDeletion deletion(around);
  if (deletion.load()) std::ignore = deletion.remove(1);
}

void deleteListed(Surroundings& around, TitleBar&) {
  static_cast<YieldingBoxes&>(around.boxes).typed = "1";
  ListPage page;
  DeleteColumn(around, page);
}

void showListed(Surroundings& around, TitleBar& title) {
  ListPage page;
  RecordingSurface surface;
  ShowPage(around, page, surface, title);
}

void loadBagWindow(Surroundings& around, TitleBar&) {
  PlainButtons buttons;
  loadBagInBagWindow(around, buttons);
}

void saveBagWindow(Surroundings& around, TitleBar&) {
  PlainButtons buttons;
  buttons.mark({1, 2, 3, 9, 10, 11, 12, 13, 14});
  saveBag(around, buttons);
}

void loadBankoWindow(Surroundings& around, TitleBar&) {
  PlainFields fields = twoBankos();
  loadBankoInBankoWindow(around, fields);
}

void saveBankoWindow(Surroundings& around, TitleBar&) {
  PlainFields fields = twoBankos();
  saveBanko(around, fields);
}

template <Generator::Mode mode, int count>
void generate(Surroundings& around, TitleBar& title) {
  std::ignore = Generator(around, title).start(mode, std::to_string(count));
}

void writeCombinations(Surroundings& around, TitleBar& title) {
  std::ignore = listCombinations(around, title, Output::text, {1, 100});
}

void showKept(Surroundings& around, TitleBar& title) {
  ListPage page;
  RecordingSurface surface;
  ShowRndPage(around, page, surface, title);
}

template <Filter filter, const char* typed>
void thinOut(Surroundings& around, TitleBar& title) {
  static_cast<YieldingBoxes&>(around.boxes).typed = typed;
  ListPage page;
  filterList(filter, around, page, title);
}

constexpr char someNumbers[] = "7,10,20";
constexpr char everyColumn[] = "1";
constexpr char aPair[] = "1-7";
constexpr char somePairs[] = "1-7,2-8";

constexpr auto newList = Generator::Mode::newList;
constexpr auto append = Generator::Mode::append;

std::vector<Action> savingActions() {
  using enum Action::OnFault;
  return {
      {"save", full(), save},
      {"save the first", without(randomColumns), save},
      {"write the place", full(), writeThePlace},
      {"write the first place", without(settingsFile), writeThePlace},
      {"read the place", full(), readThePlace},
      {"load the bag", full(), alone<loadBagInMainWindow>},
      {"load the bankos", full(), alone<loadBankoInMainWindow>},
      {"load the bag in its window", full(), loadBagWindow},
      {"load the bankos in their window", full(), loadBankoWindow},
      {"save the bag", full(), saveBagWindow},
      {"save the first bag", without(bagFileName), saveBagWindow},
      {"save the bankos", full(), saveBankoWindow},
      {"save the first bankos", without(bagFileName), saveBankoWindow},
  };
}

std::vector<Action> listActions() {
  using enum Action::OnFault;
  return {
      {"make the kept columns the list", full(), changeRndFile, mayGoOn},
      {"make the kept columns the first list", without(combinationList), changeRndFile, mayGoOn},
      {"delete the kept columns", full(), deleteRndFile, mayGoOn},
      {"delete the kept columns in their window", full(), alone<askAndDeleteRndFile>, mayGoOn},
      {"append to the list", full(), appendList},
      {"append to a missing list", without(combinationList), appendList},
      {"save as the list", full(), alone<saveAsCombinationList>},
      {"delete a kept column", full(), deleteKept, mayGoOn},
      {"delete the only kept column", full(1), deleteKept, mayGoOn},
      {"delete a listed column", full(), deleteListed},
      {"delete the only listed column", full(1, 1), deleteListed},
      {"copy the list to the kept columns", full(), alone<copyToRandomColumns>},
      {"delete the list", full(), alone<deleteList>},
      {"show the list", full(), showListed},
      {"generate a longer list", full(), generate<newList, longList + 50>},
      {"generate a shorter list", full(), generate<newList, 40>},
      {"generate the first list", without(combinationList), generate<newList, 4100>},
      {"generate more", full(), generate<append, 4100>},
      {"write the kept columns as text", full(100), listKept<Output::text>},
      {"write the list as text", full(), writeCombinations},
      {"print the kept columns", full(100), listKept<Output::printer>, mayGoOn},
      {"show the kept columns", full(), showKept},
      {"draw from the list", full(), alone<PickFromList>},
  };
}

std::vector<Action> filterActions() {
  using enum Action::OnFault;
  return {
      {"delete what holds unwanted numbers", full(),
       thinOut<Filter::FilterUnwantedNumbers, someNumbers>, ends, true},
      {"delete every column", full(), thinOut<Filter::FilterUnwantedNumbers, everyColumn>, ends,
       true},
      {"keep what holds wanted numbers", full(), thinOut<Filter::FilterWantedNumbers, someNumbers>,
       ends, true},
      {"delete what holds an unwanted pair", full(), thinOut<Filter::FilterUnwantedPair, aPair>,
       ends, true},
      {"keep what holds wanted pairs", full(), thinOut<Filter::FilterWantedPairs, somePairs>, ends,
       true},
  };
}

const Bytes* find(const Folder& folder, const std::string& name) {
  const auto found = folder.find(name);
  return found == folder.end() ? nullptr : &found->second;
}

/// Whether the opening of a missing file has made it, and nothing has come into it yet.
bool isCreated(const Folder& old, const Folder& now, const std::string& name) {
  const Bytes* made = find(now, name);
  return find(old, name) == nullptr && made != nullptr && made->empty();
}

bool holdsSame(const Folder& a, const Folder& b, const std::string& name) {
  const Bytes* left = find(a, name);
  const Bytes* right = find(b, name);
  return left == nullptr || right == nullptr ? left == right : isSame(*left, *right);
}

/// Whether `now` is `old` with nothing changed but words, and those to marks.
bool isMarked(const Bytes& old, const Bytes& now) {
  if (old.size() != now.size()) return false;
  const auto before = columnsOf(old);
  const auto after = columnsOf(now);
  return std::ranges::equal(before, after, [](const ColumnRecord& a, const ColumnRecord& b) {
    return a.Balls == b.Balls && (a.Word == b.Word || b.Word == 417 || b.Word == -1);
  });
}

bool listIsMarked(const Folder& old, const Folder& now) {
  const Bytes* before = find(old, combinationList);
  const Bytes* after = find(now, combinationList);
  return before != nullptr && after != nullptr && isMarked(*before, *after) &&
         find(now, listBackup) != nullptr && isSame(*find(now, listBackup), *before);
}

bool begins(const Bytes& whole, const Bytes& part) {
  return part.size() <= whole.size() && std::equal(part.begin(), part.end(), whole.begin());
}

bool isSameFolder(const Folder& a, const Folder& b) {
  return std::ranges::equal(a, b, [](const auto& left, const auto& right) {
    return left.first == right.first && isSame(left.second, right.second);
  });
}

constexpr const char* lists[] = {randomColumns, combinationList, bagFileName, settingsFile};
constexpr const char* lasting[] = {randomColumns, combinationList, listBackup,
                                   bagFileName,   settingsFile,    textFile};

bool isLasting(const std::string& name) {
  return std::ranges::any_of(lasting, [&](const char* other) { return name == other; });
}

Folder withoutLeftOvers(Folder folder) {
  std::erase_if(folder, [](const auto& file) { return !isLasting(file.first); });
  return folder;
}

}  // namespace

std::string nameOf(const testing::TestParamInfo<Action>& info) {
  std::string name = info.param.name;
  std::ranges::replace(name, ' ', '_');
  return name;
}

const std::vector<Action>& actions() {
  static const std::vector<Action> all = [] {
    auto some = savingActions();
    for (const auto& more : {listActions(), filterActions()}) {
      some.insert(some.end(), more.begin(), more.end());
    }
    return some;
  }();
  return all;
}

void perform(const Action& action, Files& files) {
  QuietWorld world;
  world.title.journal = world.chance.journal = nullptr;  // most of the time went into these lines
  Surroundings around = world.over(files);
  action.run(around, world.title);
}

Folder resultOf(const Action& action, const Folder& start) {
  MemoryFiles files;
  files.folder = start;
  perform(action, files);
  return files.folder;
}

std::string damage(const Action& action, const Folder& now, bool died) {
  static std::map<std::pair<std::string, SharedFolder>, Folder> results;
  const Folder& old = *action.start;
  const auto [known, isNew] = results.try_emplace({action.name, action.start});
  if (isNew) known->second = resultOf(action, old);
  const Folder& fresh = known->second;
  const bool marked = action.marks && listIsMarked(old, now);
  for (const char* name : lists) {
    const bool allowed =
        (marked && std::string(name) == combinationList) || isCreated(old, now, name);
    if (!holdsSame(now, old, name) && !holdsSame(now, fresh, name) && !allowed) {
      return std::string(name) + " holds neither its old nor its new bytes";
    }
  }
  if (!holdsSame(now, old, listBackup) && !holdsSame(now, fresh, listBackup))
    return "the backup is broken";
  const bool mayGoOn = !died && action.onFault == Action::OnFault::mayGoOn;
  if (!mayGoOn && !holdsSame(now, old, combinationList) && !holdsSame(now, fresh, listBackup)) {
    return "the list has changed before its backup was there";
  }
  const bool moves =
      !holdsSame(old, fresh, randomColumns) && !holdsSame(old, fresh, combinationList);
  if (died && moves && !holdsSame(now, old, randomColumns) &&
      !holdsSame(now, fresh, combinationList)) {
    return "the columns are in neither list";
  }
  const Bytes* text = find(now, textFile);
  const Bytes* newText = find(fresh, textFile);
  if (text != nullptr && !holdsSame(now, old, textFile) && !(newText && begins(*newText, *text))) {
    return "the text is neither old nor new nor a beginning of it";
  }
  return {};
}

std::string stumbles(const Action& action, const Folder& now) {
  const Folder cleared = withoutLeftOvers(now);
  if (isSameFolder(cleared, now)) return {};
  const Folder result = resultOf(action, now);
  if (isSameFolder(result, resultOf(action, cleared))) return {};
  for (const auto& [name, bytes] : result) {
    if (!isLasting(name)) return name + " stays behind";
  }
  return "what was left over changes the next run";
}

}  // namespace karvenis
