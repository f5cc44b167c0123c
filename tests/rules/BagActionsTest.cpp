#include "bag/BagActions.h"

#include <gtest/gtest.h>

#include "bag/Spoken.h"
#include "bag/Texts.h"
#include "doubles/BagWords.h"
#include "doubles/Doubles.h"
#include "doubles/PlainButtons.h"
#include "doubles/RefusingFiles.h"
#include "doubles/Sets.h"

namespace karvenis {
namespace {

constexpr char saveQuestion[] = "Topları KARVENIS.DAT dosyasına kayıtlamak istiyormusunuz ?";
constexpr char saved[] = "Seçilen toplar KARVENIS.DAT dosyasına kayıtlandı...";

using Words = std::vector<std::string>;

TEST(ShowBag, MarksTheBagAndNothingElse) {
  World world;
  PlainButtons buttons;
  buttons.mark({1, 2, 3});
  setBag(world.state, {49, 3, 20});
  showBag(world.state, buttons);
  EXPECT_EQ(buttons.marked(), (Set{3, 20, 49}));
}

TEST(ShowBag, AnEmptyBagMarksNothing) {
  World world;
  PlainButtons buttons;
  buttons.mark({1, 49});
  showBag(world.state, buttons);
  EXPECT_EQ(buttons.marked(), Set{});
}

TEST(ShowBag, ANumberThatIsNoBallIsNotMarked) {
  World world;
  PlainButtons buttons;
  setBag(world.state, {0, 5, 50, -1, 32767});
  showBag(world.state, buttons);
  EXPECT_EQ(buttons.marked(), Set{5});
}

struct Apply {
  const char* name;
  Set marked;
  Set banko;
  Set bag;
};

class ApplyBag : public testing::TestWithParam<Apply> {};

TEST_P(ApplyBag, TakesTheMarkedBallsWithoutTheBankos) {
  World world;
  PlainButtons buttons;
  setBag(world.state, {40, 41});
  setBanko(world.state, GetParam().banko);
  buttons.mark(GetParam().marked);
  world.boxes.expectBeep();
  applyBag(world.around, buttons);
  EXPECT_EQ(bagOf(world.state), GetParam().bag);
  EXPECT_EQ(buttons.marked(), GetParam().bag) << "only what remains is marked again";
  EXPECT_EQ(bankoOf(world.state), GetParam().banko);
  EXPECT_EQ(world.windows.announced, Words{spokenBag(world.state)});
}

INSTANTIATE_TEST_SUITE_P(
    Marks, ApplyBag,
    testing::Values(Apply{"Ascending", {30, 7, 12, 1, 49, 2}, {}, {1, 2, 7, 12, 30, 49}},
                    Apply{"NothingMarked", {}, {}, {}},
                    Apply{"NothingMarkedWithBankos", {}, {7}, {}},
                    Apply{"FiveAreEnough", {1, 2, 3, 4, 5}, {}, {1, 2, 3, 4, 5}},
                    Apply{"All", allBalls(), {}, allBalls()},
                    Apply{"ABankoDropsOut", {5, 9}, {9}, {5}},
                    Apply{"AllAreBankos", {5, 9}, {9, 5}, {}}),
    [](const auto& row) { return row.param.name; });

TEST(ApplyBag, BeepsWhenTheMarksAreTakenAndGone) {
  World world;
  PlainButtons buttons;
  setBanko(world.state, {9});
  buttons.mark({5, 9});
  std::vector<Set> marked;
  std::vector<Set> bags;
  world.journal.listener = [&](const std::string&) {
    marked.push_back(buttons.marked());
    bags.push_back(bagOf(world.state));
  };
  world.boxes.expectBeep();
  applyBag(world.around, buttons);
  EXPECT_EQ(marked, std::vector<Set>{Set{}});
  EXPECT_EQ(bags, std::vector<Set>{(Set{5, 9})}) << "the bankos leave the bag behind the beep";
}

struct Save {
  const char* name;
  Set marked;
  std::vector<int> old;
  std::vector<int> file;
};

class SaveBag : public testing::TestWithParam<Save> {};

TEST_P(SaveBag, WritesFiftyWordsAndNoMore) {
  World world;
  PlainButtons buttons;
  setBag(world.state, allBalls());  // what stays behind a smaller count is not written
  buttons.mark(GetParam().marked);
  if (!GetParam().old.empty()) world.files.folder["KARVENIS.DAT"] = words(GetParam().old);
  world.boxes.expectBeep().expectQuestion(saveQuestion, true).expectBeep().expectMessage(saved);
  saveBag(world.around, buttons);
  EXPECT_EQ(world.files.bytes("KARVENIS.DAT"), words(GetParam().file));
  EXPECT_EQ(bagOf(world.state), GetParam().marked);
}

std::vector<int> then(std::vector<int> first, const std::vector<int>& rest) {
  first.insert(first.end(), rest.begin(), rest.end());
  return first;
}

INSTANTIATE_TEST_SUITE_P(
    Marks, SaveBag,
    testing::Values(Save{"Three", {5, 7, 49}, {}, bagPart({3, 5, 7, 49})},
                    Save{"None", {}, {}, bagPart({0})},
                    Save{"All", allBalls(), {}, countAndBalls(49)},
                    Save{"OverALargerBag", {5}, countAndBalls(49), bagPart({1, 5})},
                    Save{"TheBankosStay",
                         {5},
                         then(bagPart({2, 8, 9}), {2, 7, 8, 77}),
                         then(bagPart({1, 5}), {2, 7, 8, 77})},
                    Save{"OverAShortFile", {5}, {9}, bagPart({1, 5})}),
    [](const auto& row) { return row.param.name; });

TEST(SaveBag, TheBytesOfANewFile) {
  World world;
  PlainButtons buttons;
  buttons.mark({1, 49});
  world.boxes.expectBeep().expectQuestion(saveQuestion, true).expectBeep().expectMessage(saved);
  saveBag(world.around, buttons);
  const Bytes bytes = world.files.bytes("KARVENIS.DAT");
  ASSERT_EQ(bytes.size(), 100U);
  EXPECT_EQ(Bytes(bytes.begin(), bytes.begin() + 8), hex("02 00 01 00 31 00 00 00"));
  EXPECT_EQ(Bytes(bytes.begin() + 8, bytes.end()), Bytes(92));
}

TEST(SaveBag, AMarkedBankoStaysInTheBagAndMarkedUntilTheNextApply) {
  World world;
  PlainButtons buttons;
  setBanko(world.state, {9});
  buttons.mark({5, 9});
  world.boxes.expectBeep().expectQuestion(saveQuestion, true).expectBeep().expectMessage(saved);
  saveBag(world.around, buttons);
  EXPECT_EQ(bagOf(world.state), (Set{5, 9}));
  EXPECT_EQ(buttons.marked(), (Set{5, 9}));
  showBag(world.state, buttons);
  EXPECT_EQ(buttons.marked(), (Set{5, 9}));
  world.boxes.expectBeep();
  applyBag(world.around, buttons);
  EXPECT_EQ(bagOf(world.state), Set{5});
}

TEST(SaveBag, NoChangesNothing) {
  World world;
  PlainButtons buttons;
  setBag(world.state, {40});
  buttons.mark({5});
  world.boxes.expectBeep().expectQuestion(saveQuestion, false);
  saveBag(world.around, buttons);
  EXPECT_EQ(bagOf(world.state), Set{40});
  EXPECT_EQ(buttons.marked(), Set{5});
  EXPECT_TRUE(world.files.folder.empty());
}

class SaveBagRefused : public testing::TestWithParam<Fault> {};

TEST_P(SaveBagRefused, IsAFaultAndLosesNoMarkAndNoByte) {
  World world;
  RefusingFiles files(world.files);
  files.refuses = [](Fault fault, const std::string&) { return fault == GetParam(); };
  world.files.folder["KARVENIS.DAT"] = words({1, 7});
  Surroundings around{world.state, world.boxes,   world.clock,  world.chance,
                      files,       world.printer, world.windows};
  PlainButtons buttons;
  buttons.mark({5, 9});
  world.boxes.expectBeep().expectQuestion(saveQuestion, true);
  EXPECT_THROW(saveBag(around, buttons), RunTimeError);
  EXPECT_EQ(buttons.marked(), (Set{5, 9}));
  EXPECT_EQ(bagOf(world.state), (Set{5, 9}));
  EXPECT_EQ(world.files.bytes("KARVENIS.DAT"), words({1, 7}));
}

INSTANTIATE_TEST_SUITE_P(Faults, SaveBagRefused, testing::Values(Fault::open, Fault::write));

TEST(BagTexts, Keys) {
  EXPECT_STREQ(bagKeys,
               "Torba Menüsü FONKSİYON TUŞLARI : \r"
               "\r"
               "F1=  Uygula (İşaretli topları torbaya koy)\r"
               "F2=  Topları 'KARVENIS.DAT' dosyasından yükle\r"
               "F3=  İşaretli topları 'KARVENIS.DAT' dosyasına kayıtla\r"
               "F4=  Hepsini Seç\r"
               "F5=  Hiçbirini Seçme\r"
               "\r"
               "F10= Yardım\r"
               "F11= 'Torba Niçin ve Nasıl Kullanılır' Açıklaması\r"
               "\r"
               "ESC= Kapat\r");
}

TEST(BagTexts, Explanation) {
  EXPECT_EQ(
      bagExplained,
      "'TORBA' kombinasyonlarda yer alacak topların içine konulduğu sanal bir torbadır; gerçekte, "
      "kullanılacak toplar kümesidir...\r\r"
      "Tüm rastgele ve formüllü kolonlar torbada yer alan sayılardan oluşur...\r\r"
      "Tüm toplar torbaya konursa, 13983816 olasılık ortaya çıkar. Banko top kullanmadan, çıkması "
      "beklenen 36 top torbaya konursa, 1947792 olasılık ortaya çıkar...\r\r"
      "Bununla birlikte, torbaya konmayan (elenen) toplardan biri ve birkaçı 'Sayısal Loto' "
      "çekilişinde çıkarsa, tüm olasılıklar oynansa dahi, 6 tutturulamaz...\r\r"
      "Formül ve filtre kullanarak kombinasyon listesi hazırlamak isterseniz, firmamızın formül "
      "programını öneririz; bilgi için web sayfamıza bakabilirsiniz...");
  EXPECT_STREQ(bagExplainedTitle, " KARVENIS 2005 Randomizer [ TORBA'NIN İŞLEVİ ]");
}

}  // namespace
}  // namespace karvenis
