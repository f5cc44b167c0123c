#pragma once

#include <array>
#include <functional>
#include <map>
#include <optional>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "doubles/Doubles.h"
#include "doubles/Lists.h"
#include "doubles/Sets.h"

namespace karvenis {

/// What the program ought to be after each thing that a user does: its files, its shared state and
/// what each open window shows. Each move says beforehand which beeps and boxes must come, and
/// answers the boxes as chance has it. It shares no rule with the program; only balls that are
/// drawn by chance are taken over from it, where they can be ones.
class KnownProgram {
 public:
  /// A page of one of the two list windows.
  struct Page {
    std::string caption;
    std::vector<std::string> rows;
    std::int64_t start = 0;  // records before the first one shown
    std::int64_t count = 0;  // at the last redraw
  };
  struct Coupon {
    std::vector<std::string> lines;
    int column = 0;
    int ball = 6;
    bool runs = true;
    bool complete = false;  // at least once
    bool lineOpen = false;
  };

  KnownProgram(World& world, std::mt19937& random);

  // What the user does. A key is for the window that he works in.
  void press(int key);
  void goTo(const std::string& window);
  void close(const std::string& window);
  void draw();
  void liftPicture();
  void chooseSource(bool list);
  void sortNumbers(bool on);
  void mark(int ball);
  void clearBankos();
  void typeBanko(std::size_t box, const std::string& digits);
  void chooseMode(bool append);
  void chooseOutput(bool printer);
  void clickPage();
  void typeCoupon();
  /// Takes over what chance has made; the program has done the move by now.
  void takeOver();

  bool isOpen(const std::string& window) const { return openers.contains(window); }
  bool chance(int oneIn) { return random_() % static_cast<unsigned>(oneIn) == 0; }

  Lists lists;
  std::optional<std::vector<int>> bagFile;
  std::optional<std::string> text;
  Set bag, banko;
  Column drawn{};
  std::size_t seeds = 0;  // of the journal's lines, and the documents printed in them
  int documents = 0;

  std::string active = "frmLoto";
  std::map<std::string, std::string> openers{{"frmLoto", ""}};  // of every open window

  std::string caption = " KARVENIS 2005 Randomizer";
  std::array<std::string, 12> labels{};
  bool covered = true, fromList = false, sorted = false;
  std::set<int> marked;
  std::array<std::string, 5> bankoTexts;
  int bankoCount = 0;
  std::int64_t existing = 0;
  std::string wanted;
  bool appends = false;
  Page kept, list;
  std::size_t deletable = 0;  // what the deletion dialog counted when it was loaded
  std::string deleted;        // the number in its box
  std::string first = "1", last;
  std::map<std::string, bool> prints;
  Coupon coupon;

 private:
  void show(const std::string& window);
  void load(const std::string& window);
  void activate(const std::string& window);
  bool asks(const std::string& question, const std::string& title = " KARVENIS 2005 Randomizer");
  void beep(int times = 1) { boxes_.expectBeep(times); }

  void pressMain(int key);
  void saveColumn();
  void renameKept();
  void deleteKept();
  void drawFromBag();
  void drawFromList();
  void loadBagInMain();
  void loadBankoInMain();
  void pressBag(int key);
  void takeMarks();
  void markBag();
  void loadBag();
  void saveBag();
  void pressBanko(int key);
  void showBankos();
  void applyBanko();
  void loadBanko();
  void saveBanko();
  void removeBankos();
  void pressCoupon(int key);
  void pressKept(int key);
  void pressList(int key);
  void turn(Page& page, int key) const;
  void drawRows(Page& page, const std::optional<Columns>& columns, const std::string& name) const;
  void redrawKept();
  void redrawList();
  void deleteListed();
  struct FilterWords {
    std::string prompt, example, typed, shown, question;
  };
  void filter(int key);
  void filterByPair();
  void filterByPairs();
  void thinOut(const FilterWords& words, const std::function<bool(const Column&)>& keeps);
  std::int16_t anyBall();
  std::pair<std::int16_t, std::int16_t> anyPair();
  void pressGenerator(int key);
  void generate();
  void pressDeletion(int key);
  void pressListing(int key);
  void listKept();
  void listRange();
  void write(const std::string& heading, const Columns& columns, std::size_t from, std::size_t to);

  World& world_;
  ScriptedBoxes& boxes_;
  std::mt19937& random_;
  enum class Made { nothing, column, couponColumn, list } made_ = Made::nothing;
  std::size_t madeFirst_ = 0, madeCount_ = 0;
};

}  // namespace karvenis
