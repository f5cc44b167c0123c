#include "bag/BankoActions.h"

#include <gtest/gtest.h>

#include <array>

#include "bag/Spoken.h"
#include "bag/Texts.h"
#include "doubles/Doubles.h"
#include "doubles/RefusingFiles.h"
#include "doubles/Sets.h"

namespace karvenis {
namespace {

constexpr char loadQuestion[] = "Banko topları KARVENIS.DAT dosyasından yüklemek istiyormusunuz ?";
constexpr char saveQuestion[] =
    "Banko topları (topu) KARVENIS.DAT dosyasına kayıtlamak istiyormusunuz ?";
constexpr char broken[] = "'KARVENIS.DAT' dosyası bozuk !";
constexpr char saved[] = "Seçilen toplar KARVENIS.DAT dosyasına kayıtlandı...";

using Words = std::vector<std::string>;
using Texts = std::array<std::string, 5>;

/// Boxes without a window, with the filter that the window gives them.
class PlainBoxes final : public BankoBoxes {
 public:
  int chosen = 0;
  Texts texts;

  int count() const override { return chosen; }
  void chooseCount(int count) override { chosen = count; }
  std::string text(int index) const override { return texts.at(static_cast<std::size_t>(index)); }
  void setText(int index, const std::string& text) override {
    texts.at(static_cast<std::size_t>(index)) = bankoText(text);
  }
};

TEST(ShowBankoSelection, ChoosesTheCountAndWritesTheBankos) {
  World world;
  PlainBoxes boxes;
  setBanko(world.state, {30, 7});
  ShowBankoSelection(world.state, boxes);
  EXPECT_EQ(boxes.chosen, 2);
  EXPECT_EQ(boxes.texts, (Texts{"30", "7", "", "", ""}));
}

TEST(ShowBankoSelection, BoxesBeyondTheCountKeepTheirText) {
  World world;
  PlainBoxes boxes;
  boxes.texts = {"1", "2", "3", "4", "5"};
  setBanko(world.state, {30});
  ShowBankoSelection(world.state, boxes);
  EXPECT_EQ(boxes.texts, (Texts{"30", "2", "3", "4", "5"}));
  clearBanko(world.state);
  ShowBankoSelection(world.state, boxes);
  EXPECT_EQ(boxes.chosen, 0);
  EXPECT_EQ(boxes.texts, (Texts{"30", "2", "3", "4", "5"}));
}

TEST(ShowBankoSelection, ABankoThatIsNoBallShowsAnEmptyBoxAndStays) {
  World world;
  PlainBoxes boxes;
  setBanko(world.state, {77, 7, -3});
  ShowBankoSelection(world.state, boxes);
  EXPECT_EQ(boxes.chosen, 3);
  EXPECT_EQ(boxes.texts, (Texts{"", "7", "", "", ""}));
  EXPECT_EQ(bankoOf(world.state), (Set{77, 7, -3}));
  world.boxes.expectBeep();
  applyBanko(world.around, boxes);
  EXPECT_EQ(bankoOf(world.state), Set{7});
}

struct Apply {
  const char* name;
  int count;
  Texts typed;
  Set banko;
  Texts shown;
  Set bag;  // it was 7, 12, 30, 44 before
};

class ApplyBanko : public testing::TestWithParam<Apply> {};

TEST_P(ApplyBanko, TakesTheDistinctNumbersInTheirOrder) {
  World world;
  PlainBoxes boxes;
  setBag(world.state, {7, 12, 30, 44});
  setBanko(world.state, {48, 49});
  boxes.chosen = GetParam().count;
  boxes.texts = GetParam().typed;
  world.boxes.expectBeep();
  applyBanko(world.around, boxes);
  EXPECT_EQ(bankoOf(world.state), GetParam().banko);
  EXPECT_EQ(boxes.chosen, static_cast<int>(GetParam().banko.size()));
  EXPECT_EQ(boxes.texts, GetParam().shown);
  EXPECT_EQ(bagOf(world.state), GetParam().bag);
  EXPECT_EQ(world.windows.announced, Words{spokenBanko(world.state)});
}

const Set wholeBag = {7, 12, 30, 44};

INSTANTIATE_TEST_SUITE_P(
    Boxes, ApplyBanko,
    testing::Values(
        Apply{"Two", 2, {"30", "7"}, {30, 7}, {"30", "7"}, {12, 44}},
        Apply{"Five",
              5,
              {"5", "4", "3", "2", "1"},
              {5, 4, 3, 2, 1},
              {"5", "4", "3", "2", "1"},
              wholeBag},
        Apply{"ABlankAndARepeat", 3, {"12", "", "12"}, {12}, {"12"}, {7, 30, 44}},
        Apply{"BoxesBeyondTheCountAreCleared", 1, {"1", "2", "3", "4", "5"}, {1}, {"1"}, wholeBag},
        Apply{"NoCount", 0, {"12", "7"}, {}, {}, wholeBag},
        Apply{"AllBlank", 4, {}, {}, {}, wholeBag},
        Apply{"ABlankFirst", 3, {"", "9", "8"}, {9, 8}, {"9", "8"}, wholeBag},
        Apply{"AllTheSame", 5, {"9", "9", "9", "9", "9"}, {9}, {"9"}, wholeBag},
        Apply{"NotInTheBag", 1, {"1"}, {1}, {"1"}, wholeBag},
        Apply{"TheWholeBag",
              4,
              {"7", "12", "30", "44"},
              {7, 12, 30, 44},
              {"7", "12", "30", "44"},
              {}}),
    [](const auto& row) { return row.param.name; });

TEST(ApplyBanko, BeepsBeforeAnythingElse) {
  World world;
  PlainBoxes boxes;
  setBanko(world.state, {48});
  boxes.chosen = 2;
  boxes.texts = {"7", "12"};
  Set bankos;
  Texts texts;
  world.journal.listener = [&](const std::string&) {
    bankos = bankoOf(world.state);
    texts = boxes.texts;
  };
  world.boxes.expectBeep();
  applyBanko(world.around, boxes);
  EXPECT_EQ(bankos, Set{48});
  EXPECT_EQ(texts, (Texts{"7", "12"}));
}

TEST(ApplyBanko, BallsThatLeftTheBagDoNotReturn) {
  World world;
  PlainBoxes boxes;
  setBag(world.state, {7, 12});
  boxes.chosen = 1;
  boxes.texts = {"7"};
  world.boxes.expectBeep(2);
  applyBanko(world.around, boxes);
  boxes.chosen = 0;
  applyBanko(world.around, boxes);
  EXPECT_EQ(bankoOf(world.state), Set{});
  EXPECT_EQ(bagOf(world.state), Set{12});
}

TEST(ClearBanko, ClearsTheCountOnly) {
  World world;
  setBag(world.state, {1});
  setBanko(world.state, {7, 8});
  clearBanko(world.state);
  EXPECT_EQ(bankoOf(world.state), Set{});
  EXPECT_EQ(bagOf(world.state), Set{1});
}

std::vector<int> withBankoPart(const std::vector<int>& banko) {
  std::vector<int> all(50);
  all.insert(all.end(), banko.begin(), banko.end());
  return all;
}

struct Load {
  const char* name;
  std::vector<int> bankoPart;
  Set banko;
  Texts shown;
  Set bag;  // it was 7, 12, 30, 44 before
};

class LoadBankoInWindow : public testing::TestWithParam<Load> {};

TEST_P(LoadBankoInWindow, TakesAndShowsTheFile) {
  World world;
  PlainBoxes boxes;
  setBag(world.state, wholeBag);
  setBanko(world.state, {48, 49});
  boxes.chosen = 5;
  boxes.texts = {"1", "2", "3", "4", "5"};
  const Bytes file = words(withBankoPart(GetParam().bankoPart));
  world.files.folder["KARVENIS.DAT"] = file;
  world.boxes.expectBeep().expectQuestion(loadQuestion, true);
  loadBankoInBankoWindow(world.around, boxes);
  EXPECT_EQ(bankoOf(world.state), GetParam().banko);
  EXPECT_EQ(boxes.chosen, static_cast<int>(GetParam().banko.size()));
  EXPECT_EQ(boxes.texts, GetParam().shown);
  EXPECT_EQ(bagOf(world.state), GetParam().bag);
  EXPECT_EQ(world.files.bytes("KARVENIS.DAT"), file) << "a load writes nothing";
  EXPECT_EQ(world.windows.announced, Words{spokenBanko(world.state)});
}

INSTANTIATE_TEST_SUITE_P(
    Files, LoadBankoInWindow,
    testing::Values(
        Load{"Two", {2, 30, 7}, {30, 7}, {"30", "7"}, {12, 44}},
        Load{"Five", {5, 1, 2, 3, 4, 5}, {1, 2, 3, 4, 5}, {"1", "2", "3", "4", "5"}, wholeBag},
        Load{"StaleOnesBehind", {1, 7, 12}, {7}, {"7"}, {12, 30, 44}},
        Load{"NotRangeChecked", {2, 77, 7}, {77, 7}, {"", "7"}, {12, 30, 44}},
        Load{"None", {0}, {}, {}, wholeBag}, Load{"Negative", {-1}, {}, {}, wholeBag},
        Load{"MostNegative", {-32768}, {}, {}, wholeBag},
        Load{"Six", {6, 1, 2, 3, 4, 5, 6}, {}, {}, wholeBag},
        Load{"SevenIn118Bytes", {7, 1, 2, 3, 4, 5, 6, 7, 8}, {}, {}, wholeBag}),
    [](const auto& row) { return row.param.name; });

struct Broken {
  const char* name;
  std::vector<int> bankoPart;
};

class LoadBrokenBanko : public testing::TestWithParam<Broken> {};

TEST_P(LoadBrokenBanko, SaysSoAndLeavesTheBankos) {
  World world;
  PlainBoxes boxes;
  setBag(world.state, {7, 12});
  setBanko(world.state, {12, 49});
  boxes.chosen = 3;
  boxes.texts = {"1", "2", "3"};
  world.files.folder["KARVENIS.DAT"] = words(withBankoPart(GetParam().bankoPart));
  world.boxes.expectBeep().expectQuestion(loadQuestion, true).expectWarning(broken, "! HATA !");
  loadBankoInBankoWindow(world.around, boxes);
  EXPECT_EQ(bankoOf(world.state), (Set{12, 49}));
  EXPECT_EQ(boxes.chosen, 3);
  EXPECT_EQ(boxes.texts, (Texts{"1", "2", "3"}));
  EXPECT_EQ(bagOf(world.state), Set{7}) << "the bankos still leave the bag";
  EXPECT_EQ(world.windows.announced, Words{});
}

INSTANTIATE_TEST_SUITE_P(Files, LoadBrokenBanko,
                         testing::Values(Broken{"SevenIn102Bytes", {7}},
                                         Broken{"OneMissing", {2, 7}},
                                         Broken{"SixOneMissing", {6, 1, 2, 3, 4, 5}},
                                         Broken{"Largest", {32767}}),
                         [](const auto& row) { return row.param.name; });

class LoadBankoTooShort : public testing::TestWithParam<int> {};

TEST_P(LoadBankoTooShort, StopsBeforeTheQuestion) {
  World world;
  PlainBoxes boxes;
  world.files.folder["KARVENIS.DAT"] = Bytes(static_cast<std::size_t>(GetParam()), std::byte{1});
  world.boxes.expectBeep();
  loadBankoInBankoWindow(world.around, boxes);
  EXPECT_EQ(bankoOf(world.state), Set{});
}

INSTANTIATE_TEST_SUITE_P(Lengths, LoadBankoTooShort, testing::Values(0, 2, 100, 101));

TEST(LoadBankoInWindow, WithoutAFileThereIsABeepAndNothingElse) {
  World world;
  PlainBoxes boxes;
  world.boxes.expectBeep();
  loadBankoInBankoWindow(world.around, boxes);
  EXPECT_TRUE(world.files.folder.empty());
}

TEST(LoadBankoInWindow, NoLeavesAllAsItWas) {
  World world;
  PlainBoxes boxes;
  boxes.texts = {"1"};
  setBanko(world.state, {48});
  world.files.folder["KARVENIS.DAT"] = words(withBankoPart({1, 7}));
  world.boxes.expectBeep().expectQuestion(loadQuestion, false);
  loadBankoInBankoWindow(world.around, boxes);
  EXPECT_EQ(bankoOf(world.state), Set{48});
  EXPECT_EQ(boxes.texts, Texts{"1"});
}

TEST(LoadBankoInWindow, AFileThatGoesBehindTheQuestionLeavesAllAsItWas) {
  World world;
  PlainBoxes boxes;
  boxes.texts = {"1"};
  setBag(world.state, {48, 49});  // as the bag window's save may leave it
  setBanko(world.state, {48});
  world.files.folder["KARVENIS.DAT"] = words(withBankoPart({1, 7}));
  world.boxes.whileOpen = [&] { world.files.folder.clear(); };
  world.boxes.expectBeep().expectQuestion(loadQuestion, true);
  loadBankoInBankoWindow(world.around, boxes);
  EXPECT_EQ(bankoOf(world.state), Set{48});
  EXPECT_EQ(bagOf(world.state), (Set{48, 49}));
  EXPECT_EQ(boxes.texts, Texts{"1"});
  EXPECT_TRUE(world.files.folder.empty()) << "no file is made";
}

/// The length was taken before the question, the words are read behind it.
TEST(LoadBankoInWindow, AFileThatWasShortenedMeanwhileReadsAsZeros) {
  World world;
  PlainBoxes boxes;
  setBanko(world.state, {48});
  world.files.folder["KARVENIS.DAT"] = words(withBankoPart({2, 7, 8}));
  world.boxes.whileOpen = [&] {
    world.files.folder["KARVENIS.DAT"] = words(withBankoPart({2, 7}));
  };
  world.boxes.expectBeep().expectQuestion(loadQuestion, true);
  loadBankoInBankoWindow(world.around, boxes);
  EXPECT_EQ(bankoOf(world.state), (Set{7, 0}));
}

TEST(LoadBankoInWindow, AFileThatGrewMeanwhileIsBrokenByItsOldLength) {
  World world;
  PlainBoxes boxes;
  setBanko(world.state, {48});
  world.files.folder["KARVENIS.DAT"] = words(withBankoPart({1, 7}));
  world.boxes.whileOpen = [&] {
    world.files.folder["KARVENIS.DAT"] = words(withBankoPart({2, 7, 8}));
  };
  world.boxes.expectBeep().expectQuestion(loadQuestion, true).expectWarning(broken, "! HATA !");
  loadBankoInBankoWindow(world.around, boxes);
  EXPECT_EQ(bankoOf(world.state), Set{48});
}

struct Save {
  const char* name;
  Bytes old;
  Texts typed;
  Bytes file;
};

class SaveBanko : public testing::TestWithParam<Save> {};

TEST_P(SaveBanko, WritesTheBankoPartOnly) {
  World world;
  PlainBoxes boxes;
  boxes.chosen = 5;
  boxes.texts = GetParam().typed;
  if (!GetParam().old.empty()) world.files.folder["KARVENIS.DAT"] = GetParam().old;
  world.boxes.expectBeep()
      .expectQuestion(saveQuestion, true)
      .expectBeep(2)  // the apply, then the end
      .expectMessage(saved);
  saveBanko(world.around, boxes);
  EXPECT_EQ(world.files.bytes("KARVENIS.DAT"), GetParam().file);
}

Bytes filled(std::size_t length) { return Bytes(length, std::byte{1}); }

/// `old` up to byte 100, zeros up to there if it is shorter, then these words, then what was
/// there in `old`.
Bytes overwritten(Bytes old, const std::vector<int>& banko) {
  const Bytes part = words(banko);
  old.resize(std::max(old.size(), 100 + part.size()));
  std::ranges::copy(part, old.begin() + 100);
  return old;
}

INSTANTIATE_TEST_SUITE_P(
    Files, SaveBanko,
    testing::Values(
        Save{"New", {}, {"30", "7"}, words(withBankoPart({2, 30, 7}))},
        Save{"NewWithoutBankos", {}, {}, words(withBankoPart({0}))},
        Save{"Validated", {}, {"12", "", "12"}, words(withBankoPart({1, 12}))},
        Save{"OneByte", filled(1), {"7"}, words(withBankoPart({1, 7}))},
        Save{"TwoBytesAreExtended", filled(2), {"7"}, overwritten(filled(2), {1, 7})},
        Save{"NinetyNineBytesAreExtended", filled(99), {"7"}, overwritten(filled(99), {1, 7})},
        Save{"TheBagStays", filled(100), {"7"}, overwritten(filled(100), {1, 7})},
        Save{"StaleBankosStay",
             words(withBankoPart({5, 1, 2, 3, 4, 5})),
             {"7"},
             words(withBankoPart({1, 7, 2, 3, 4, 5}))},
        Save{"WhatLiesBehindStays", filled(203), {"7"}, overwritten(filled(203), {1, 7})}),
    [](const auto& row) { return row.param.name; });

TEST(SaveBanko, TheBytesOfANewFile) {
  World world;
  PlainBoxes boxes;
  boxes.chosen = 2;
  boxes.texts = {"49", "1"};
  world.boxes.expectBeep().expectQuestion(saveQuestion, true).expectBeep(2).expectMessage(saved);
  saveBanko(world.around, boxes);
  const Bytes bytes = world.files.bytes("KARVENIS.DAT");
  ASSERT_EQ(bytes.size(), 106U);
  EXPECT_EQ(Bytes(bytes.begin(), bytes.begin() + 100), Bytes(100));
  EXPECT_EQ(Bytes(bytes.begin() + 100, bytes.end()), hex("02 00 31 00 01 00"));
}

TEST(SaveBanko, NoAppliesNothing) {
  World world;
  PlainBoxes boxes;
  setBanko(world.state, {48});
  boxes.chosen = 1;
  boxes.texts = {"7"};
  world.boxes.expectBeep().expectQuestion(saveQuestion, false);
  saveBanko(world.around, boxes);
  EXPECT_EQ(bankoOf(world.state), Set{48});
  EXPECT_EQ(boxes.texts, Texts{"7"});
  EXPECT_TRUE(world.files.folder.empty());
}

class SaveBankoRefused : public testing::TestWithParam<Fault> {};

TEST_P(SaveBankoRefused, IsAFaultAndLosesNoBankoAndNoByte) {
  World world;
  RefusingFiles files(world.files);
  files.refuses = [](Fault fault, const std::string&) { return fault == GetParam(); };
  const Bytes old = words(withBankoPart({1, 8}));
  world.files.folder["KARVENIS.DAT"] = old;
  Surroundings around{world.state, world.boxes,   world.clock,  world.chance,
                      files,       world.printer, world.windows};
  PlainBoxes boxes;
  boxes.chosen = 1;
  boxes.texts = {"7"};
  world.boxes.expectBeep().expectQuestion(saveQuestion, true).expectBeep();
  EXPECT_THROW(saveBanko(around, boxes), RunTimeError);
  EXPECT_EQ(bankoOf(world.state), Set{7});
  EXPECT_EQ(boxes.texts, Texts{"7"});
  EXPECT_EQ(world.files.bytes("KARVENIS.DAT"), old);
}

INSTANTIATE_TEST_SUITE_P(Faults, SaveBankoRefused, testing::Values(Fault::open, Fault::write));

TEST(BankoTexts, Keys) {
  EXPECT_STREQ(bankoKeys,
               "Banko Menüsü FONKSİYON TUŞLARI : \r"
               "\r"
               "F1=  Uygula (İstenen topu/topları banko top yap)\r"
               "F2=  Banko seçimini 'KARVENIS.DAT' dosyasından yükle\r"
               "F3=  Banko seçimini 'KARVENIS.DAT' dosyasına kayıtla\r"
               "\r"
               "F4-F9= Banko top sayısı seçimi\r"
               "\r"
               "F10= Yardım\r"
               "F11= 'Banko Nedir ve Niçin Kullanılır' Açıklaması\r"
               "\r"
               "ESC= Kapat\r");
}

TEST(BankoTexts, Explanation) {
  EXPECT_EQ(
      bankoExplained,
      "'BANKO TOP' ifadesi tüm kombinasyonlarda mutlaka yer alacak topları belirtir...\r\r"
      "Tüm toplar (bankosuz) torbaya konursa, 13983816 olasılık ortaya çıkar. Banko top "
      "kullanmadan, çıkması beklenen 36 top torbaya konursa, 1947792 olasılık ortaya çıkar...\r\r"
      "Bir banko top seçilirse ve diğer 48 top torbaya konursa, 1712304 olasılık ortaya "
      "çıkar...\r\r"
      "Bununla birlikte, banko top (veya toplar) 'Sayısal Loto' çekilişinde çıkmazsa, doğal "
      "olarak, 6 (veya 5) tutturulamaz...\r\r"
      "Formül ve filtre kullanarak kombinasyon listesi hazırlamak isterseniz, firmamızın formül "
      "programını öneririz; bilgi için web sayfamıza bakabilirsiniz...");
  EXPECT_STREQ(bankoExplainedTitle, " KARVENIS 2005 Randomizer  [ BANKO'NUN İŞLEVİ ]");
}

}  // namespace
}  // namespace karvenis
