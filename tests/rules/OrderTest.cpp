// The steps of what the main window, the bag's windows and the random column list do, in their
// order, as the journal of what happens outside the rules tells them.
#include <algorithm>

#include "bag/BagActions.h"
#include "bag/BankoActions.h"
#include "bag/MainWindowLoads.h"
#include "core/Draw.h"
#include "doubles/RefusingFiles.h"
#include "doubles/Sets.h"
#include "main/NewColumn.h"
#include "randomlist/ColumnDeletion.h"
#include "randomlist/RandomColumnFile.h"
#include "randomlist/RandomColumnList.h"
#include "rules/Orders.h"

namespace karvenis {
namespace {

/// Whether what is looked at holds when a line is noted.
class AtLine {
 public:
  AtLine(World& world, std::string line, std::function<bool()> looked) {
    world.journal.listener = [this, line, looked](const std::string& noted) {
      if (noted == line) holds_ = looked();
    };
  }
  bool holds() const { return holds_; }

 private:
  bool holds_ = false;
};

// --- the main window's own actions

TEST(Order, OfADrawSeedsFirst) {
  World world;
  EXPECT_TRUE(drawFromBag(world.around, false));
  EXPECT_EQ(world.journal.lines, (Lines{"seed 1000000", "number"}));
}

TEST(Order, OfARefusedDrawSeedsNothing) {
  World world;
  setBag(world.state, {1, 2});
  world.boxes.expectWarning("En az 6 top seçmiş olmanız gerekiyor!", " ! Eksik top seçimi !");
  EXPECT_FALSE(drawFromBag(world.around, false));
  EXPECT_EQ(world.journal.lines, (Lines{"beep", "message En az 6 top seçmiş olmanız gerekiyor!"}));
}

TEST(Order, OfAListPickBeepsWithTheListClosed) {
  World world;
  world.files.folder["KARVENIS.LST"] = countedColumns(3);
  world.boxes.expectBeep();
  EXPECT_TRUE(PickFromList(world.around).has_value());
  EXPECT_EQ(world.journal.lines,
            (Lines{"seed 1000000", "number", "open KARVENIS.LST", "close KARVENIS.LST", "beep"}));
}

TEST(Order, OfSavingTheColumn) {
  World world;
  world.state.Drawn = column(6, 5, 4, 3, 2, 1);
  const auto isSorted = [&] { return std::ranges::is_sorted(world.state.Drawn); };
  const AtLine sortedBefore(world, "pointer hourglass", isSorted);
  world.boxes.expectBeep();
  saveRndColumn(world.around, world.title, false);
  EXPECT_EQ(world.journal.lines,
            (Lines{"title  Kolon kayıtlanıyor...", "pointer hourglass", "open KARVENIS.RND",
                   "write KARVENIS.RND", "sync KARVENIS.RND", "close KARVENIS.RND", "beep",
                   "pointer normal", "title  KARVENIS.RND Kayıt No= 1"}));
  EXPECT_FALSE(sortedBefore.holds());
}

TEST(Order, OfSavingTheColumnSortsBeforeTheFileIsOpened) {
  World world;
  world.state.Drawn = column(6, 5, 4, 3, 2, 1);
  const AtLine sorted(world, "open KARVENIS.RND",
                      [&] { return std::ranges::is_sorted(world.state.Drawn); });
  world.boxes.expectBeep();
  saveRndColumn(world.around, world.title, false);
  EXPECT_TRUE(sorted.holds());
}

TEST(Order, OfShowingTheListPutsTheTitleBackBehindTheWindow) {
  World world;
  world.files.folder["KARVENIS.RND"] = countedColumns(1);
  showRndList(world.around, world.title);
  EXPECT_EQ(world.journal.lines, (Lines{"show frmRndLst", "title  KARVENIS 2005 Randomizer"}));
}

TEST(Order, OfMakingTheFileTheList) {
  World world;
  world.files.folder = {{"KARVENIS.RND", countedColumns(3)}, {"KARVENIS.LST", countedColumns(5)}};
  world.boxes.expectBeep()
      .expectQuestion(changeQuestion, true)
      .expectBeep()
      .expectMessage(" 3 kolon 'KARVENIS.LST' dosyasına kayıtlandı.");
  changeRndFile(world.around, world.title);
  EXPECT_EQ(world.journal.lines,
            (Lines{"beep", "question " + std::string(changeQuestion) + " Yes",
                   "copy KARVENIS.LST KARVENIS.OLD", "copy KARVENIS.RND KARVENIS.LST",
                   "remove KARVENIS.RND", "title  KARVENIS 2005 Randomizer", "beep",
                   "message  3 kolon 'KARVENIS.LST' dosyasına kayıtlandı."}));
}

/// What cannot be counted is no empty file: it stays, and nothing is asked.
TEST(Order, OfMakingTheFileTheListEndsWhereItsColumnsCannotBeCounted) {
  World world;
  world.files.folder = {{"KARVENIS.RND", countedColumns(3)}, {"KARVENIS.LST", countedColumns(5)}};
  const auto before = world.files.folder;
  RefusingFiles files(world.files);
  files.refuses = [](Fault fault, const std::string& name) {
    return fault == Fault::read && name == "KARVENIS.RND";
  };
  Surroundings around = world.over(files);
  changeRndFile(around, world.title);
  EXPECT_EQ(world.journal.lines, Lines{});
  EXPECT_EQ(world.files.folder, before);
}

TEST(Order, OfDeletingTheFilePutsTheTitleBackBehindTheBox) {
  World world;
  world.files.folder["KARVENIS.RND"] = countedColumns(3);
  world.boxes.expectBeep()
      .expectQuestion("'KARVENIS.RND' dosyasını silmek istiyormusunuz ?", true)
      .expectBeep()
      .expectMessage("KARVENIS.RND dosyası silindi.", bareTitle);
  deleteRndFile(world.around, world.title);
  EXPECT_EQ(world.journal.lines,
            (Lines{"beep", "question 'KARVENIS.RND' dosyasını silmek istiyormusunuz ? Yes",
                   "remove KARVENIS.RND", "beep", "message KARVENIS.RND dosyası silindi.",
                   "title  KARVENIS 2005 Randomizer"}));
}

// --- bag and bankos

/// A bag file with the bag 5, 7 and the bankos 7, 9.
Bytes bagFile() {
  std::vector<int> all = {2, 5, 7};
  all.resize(50);
  all.insert(all.end(), {2, 7, 9});
  return words(all);
}

TEST(Order, OfLoadingTheBagBeepsAgainWithTheFileClosed) {
  World world;
  world.files.folder["KARVENIS.DAT"] = bagFile();
  constexpr char question[] = "Topları KARVENIS.DAT dosyasından yüklemek istiyormusunuz?";
  world.boxes.expectBeep().expectQuestion(question, true).expectBeep(2);
  loadBagInMainWindow(world.around);
  EXPECT_EQ(world.journal.lines,
            (Lines{"beep", "question " + std::string(question) + " Yes", "open KARVENIS.DAT",
                   "beep", "close KARVENIS.DAT", "beep"}));
}

TEST(Order, OfLoadingTheBankosClosesTheFileBeforeTheyLeaveTheBag) {
  World world;
  setBag(world.state, {5, 7});
  world.files.folder["KARVENIS.DAT"] = bagFile();
  const AtLine stillInBag(world, "close KARVENIS.DAT", [&] {
    return world.state.Bag.contains(7) && !world.state.Banko.empty();
  });
  constexpr char question[] = "Banko seçimini KARVENIS.DAT dosyasından yüklemek istiyormusunuz ?";
  world.boxes.expectBeep().expectQuestion(question, true).expectBeep();
  loadBankoInMainWindow(world.around);
  EXPECT_EQ(world.journal.lines, (Lines{"beep", "question " + std::string(question) + " Yes",
                                        "open KARVENIS.DAT", "close KARVENIS.DAT", "beep"}));
  EXPECT_TRUE(stillInBag.holds());
  EXPECT_EQ(bagOf(world.state), Set{5});
}

TEST(Order, OfLoadingTheBankosBeepsWithThemOutOfTheBag) {
  World world;
  setBag(world.state, {5, 7});
  world.files.folder["KARVENIS.DAT"] = bagFile();
  const AtLine gone(world, "beep", [&] { return bagOf(world.state) == Set{5}; });
  world.boxes.expectBeep()
      .expectQuestion("Banko seçimini KARVENIS.DAT dosyasından yüklemek istiyormusunuz ?", true)
      .expectBeep();
  loadBankoInMainWindow(world.around);
  EXPECT_TRUE(gone.holds()) << "at the last one";
}

class NoButtons final : public BallButtons {
 public:
  bool isMarked(int) const override { return false; }
  void setMarked(int, bool) override {}
};

class OneField final : public BankoFields {
 public:
  int count() const override { return 1; }
  void chooseCount(int) override {}
  std::string text(int) const override { return "7"; }
  void setText(int, const std::string&) override {}
};

const Lines savedWithBeep = {"open KARVENIS.DAT",
                             "write KARVENIS.DAT",
                             "sync KARVENIS.DAT",
                             "close KARVENIS.DAT",
                             "beep",
                             "message Seçilen toplar KARVENIS.DAT dosyasına kayıtlandı..."};

TEST(Order, OfSavingTheBag) {
  World world;
  constexpr char question[] = "Topları KARVENIS.DAT dosyasına kayıtlamak istiyormusunuz ?";
  world.boxes.expectBeep()
      .expectQuestion(question, true)
      .expectBeep()
      .expectMessage("Seçilen toplar KARVENIS.DAT dosyasına kayıtlandı...");
  saveBag(world.around, NoButtons());
  EXPECT_EQ(world.journal.lines,
            joined({{"beep", "question " + std::string(question) + " Yes"}, savedWithBeep}));
}

TEST(Order, OfSavingTheBankosAppliesThemFirst) {
  World world;
  OneField fields;
  const AtLine applied(world, "open KARVENIS.DAT", [&] { return world.state.Banko.contains(7); });
  constexpr char question[] =
      "Banko topları (topu) KARVENIS.DAT dosyasına kayıtlamak istiyormusunuz ?";
  world.boxes.expectBeep()
      .expectQuestion(question, true)
      .expectBeep(2)
      .expectMessage("Seçilen toplar KARVENIS.DAT dosyasına kayıtlandı...");
  saveBanko(world.around, fields);
  EXPECT_EQ(
      world.journal.lines,
      joined({{"beep", "question " + std::string(question) + " Yes", "beep"}, savedWithBeep}));
  EXPECT_TRUE(applied.holds());
}

// --- the random column list

TEST(Order, OfDeletingOneRandomColumn) {
  World world;
  world.files.folder = {{"KARVENIS.RND", countedColumns(3)}, {"KARVENIS.YND", countedColumns(1)}};
  ColumnDeletion deletion(world.around);
  world.boxes.expectBeep();
  EXPECT_TRUE(deletion.load());
  EXPECT_TRUE(deletion.remove(2));
  EXPECT_EQ(world.journal.lines, joined({{"remove KARVENIS.YND", "beep"},
                                         replaced("KARVENIS.RND", "KARVENIS.YND",
                                                  {"open KARVENIS.RND", "close KARVENIS.RND"})}));
}

TEST(Order, OfAppendingToTheListTellsBehindTheClosing) {
  World world;
  world.files.folder = {{"KARVENIS.RND", countedColumns(3)}, {"KARVENIS.LST", countedColumns(5)}};
  constexpr char question[] =
      "Rastgele Kolon Listesi'ni Kombinasyon Listesi'ne eklemek istiyormusunuz ?";
  world.boxes.expectBeep()
      .expectQuestion(question, true)
      .expectBeep()
      .expectMessage("Rastgele Kolon Listesi Kombinasyon Listesi'ne eklendi.");
  ListPage page;
  appendToCombinationList(world.around, page);
  EXPECT_EQ(
      world.journal.lines,
      joined(
          {{"beep", "question " + std::string(question) + " Yes", "copy KARVENIS.LST KARVENIS.YND"},
           replaced("KARVENIS.LST", "KARVENIS.YND", {"open KARVENIS.RND", "close KARVENIS.RND"}),
           {"beep", "message Rastgele Kolon Listesi Kombinasyon Listesi'ne eklendi."}}));
}

TEST(Order, OfSavingAsTheListBacksUpFirst) {
  World world;
  world.files.folder = {{"KARVENIS.RND", countedColumns(3)}, {"KARVENIS.LST", countedColumns(5)}};
  constexpr char question[] =
      "Rastgele Kolon Listesi'ni (KARVENIS.RND) Kombinasyon Listesi (KARVENIS.LST) olarak "
      "kayıtlamak istiyormusunuz?";
  world.boxes.expectBeep()
      .expectQuestion(question, true)
      .expectBeep()
      .expectMessage(" 3 kolon 'KARVENIS.LST' dosyasına kayıtlandı.");
  saveAsCombinationList(world.around);
  EXPECT_EQ(world.journal.lines,
            (Lines{"beep", "question " + std::string(question) + " Yes",
                   "copy KARVENIS.LST KARVENIS.OLD", "copy KARVENIS.RND KARVENIS.LST", "beep",
                   "message  3 kolon 'KARVENIS.LST' dosyasına kayıtlandı."}));
}

}  // namespace
}  // namespace karvenis
