#include "bag/BankoActions.h"

#include <gtest/gtest.h>

#include "bag/Spoken.h"
#include "bag/Texts.h"
#include "doubles/BagWords.h"
#include "doubles/Doubles.h"
#include "doubles/PlainFields.h"
#include "doubles/RefusingFiles.h"
#include "doubles/Sets.h"

namespace karvenis {
namespace {

constexpr char saveQuestion[] =
    "Banko topları (topu) KARVENIS.DAT dosyasına kayıtlamak istiyormusunuz ?";
constexpr char saved[] = "Seçilen toplar KARVENIS.DAT dosyasına kayıtlandı...";

using Words = std::vector<std::string>;
using Texts = PlainFields::Texts;

TEST(ShowBankoSelection, ChoosesTheCountAndWritesTheBankos) {
  World world;
  PlainFields fields;
  setBanko(world.state, {30, 7});
  ShowBankoSelection(world.state, fields);
  EXPECT_EQ(fields.chosen, 2);
  EXPECT_EQ(fields.texts, (Texts{"30", "7", "", "", ""}));
}

TEST(ShowBankoSelection, FieldsBeyondTheCountKeepTheirText) {
  World world;
  PlainFields fields;
  fields.texts = {"1", "2", "3", "4", "5"};
  setBanko(world.state, {30});
  ShowBankoSelection(world.state, fields);
  EXPECT_EQ(fields.texts, (Texts{"30", "2", "3", "4", "5"}));
  clearBanko(world.state);
  ShowBankoSelection(world.state, fields);
  EXPECT_EQ(fields.chosen, 0);
  EXPECT_EQ(fields.texts, (Texts{"30", "2", "3", "4", "5"}));
}

TEST(ShowBankoSelection, ABankoThatIsNoBallShowsAnEmptyFieldAndStays) {
  World world;
  PlainFields fields;
  setBanko(world.state, {77, 7, -3});
  ShowBankoSelection(world.state, fields);
  EXPECT_EQ(fields.chosen, 3);
  EXPECT_EQ(fields.texts, (Texts{"", "7", "", "", ""}));
  EXPECT_EQ(bankoOf(world.state), (Set{77, 7, -3}));
  world.boxes.expectBeep();
  applyBanko(world.around, fields);
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
  PlainFields fields;
  setBag(world.state, {7, 12, 30, 44});
  setBanko(world.state, {48, 49});
  fields.chosen = GetParam().count;
  fields.texts = GetParam().typed;
  world.boxes.expectBeep();
  applyBanko(world.around, fields);
  EXPECT_EQ(bankoOf(world.state), GetParam().banko);
  EXPECT_EQ(fields.chosen, static_cast<int>(GetParam().banko.size()));
  EXPECT_EQ(fields.texts, GetParam().shown);
  EXPECT_EQ(bagOf(world.state), GetParam().bag);
  EXPECT_EQ(world.windows.announced, Words{spokenBanko(world.state)});
}

INSTANTIATE_TEST_SUITE_P(
    Fields, ApplyBanko,
    testing::Values(
        Apply{"Two", 2, {"30", "7"}, {30, 7}, {"30", "7"}, {12, 44}},
        Apply{"Five",
              5,
              {"5", "4", "3", "2", "1"},
              {5, 4, 3, 2, 1},
              {"5", "4", "3", "2", "1"},
              bagOfFour},
        Apply{"ABlankAndARepeat", 3, {"12", "", "12"}, {12}, {"12"}, {7, 30, 44}},
        Apply{
            "FieldsBeyondTheCountAreCleared", 1, {"1", "2", "3", "4", "5"}, {1}, {"1"}, bagOfFour},
        Apply{"NoCount", 0, {"12", "7"}, {}, {}, bagOfFour},
        Apply{"AllBlank", 4, {}, {}, {}, bagOfFour},
        Apply{"ABlankFirst", 3, {"", "9", "8"}, {9, 8}, {"9", "8"}, bagOfFour},
        Apply{"AllTheSame", 5, {"9", "9", "9", "9", "9"}, {9}, {"9"}, bagOfFour},
        Apply{"NotInTheBag", 1, {"1"}, {1}, {"1"}, bagOfFour},
        Apply{"TheWholeBag",
              4,
              {"7", "12", "30", "44"},
              {7, 12, 30, 44},
              {"7", "12", "30", "44"},
              {}}),
    [](const auto& row) { return row.param.name; });

TEST(ApplyBanko, BeepsBeforeAnythingElse) {
  World world;
  PlainFields fields;
  setBanko(world.state, {48});
  fields.chosen = 2;
  fields.texts = {"7", "12"};
  Set bankos;
  Texts texts;
  world.journal.listener = [&](const std::string&) {
    bankos = bankoOf(world.state);
    texts = fields.texts;
  };
  world.boxes.expectBeep();
  applyBanko(world.around, fields);
  EXPECT_EQ(bankos, Set{48});
  EXPECT_EQ(texts, (Texts{"7", "12"}));
}

TEST(ApplyBanko, BallsThatLeftTheBagDoNotReturn) {
  World world;
  PlainFields fields;
  setBag(world.state, {7, 12});
  fields.chosen = 1;
  fields.texts = {"7"};
  world.boxes.expectBeep(2);
  applyBanko(world.around, fields);
  fields.chosen = 0;
  applyBanko(world.around, fields);
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

struct Save {
  const char* name;
  Bytes old;
  Texts typed;
  Bytes file;
};

class SaveBanko : public testing::TestWithParam<Save> {};

TEST_P(SaveBanko, WritesTheBankoPartOnly) {
  World world;
  PlainFields fields;
  fields.chosen = 5;
  fields.texts = GetParam().typed;
  if (!GetParam().old.empty()) world.files.folder["KARVENIS.DAT"] = GetParam().old;
  world.boxes.expectBeep()
      .expectQuestion(saveQuestion, true)
      .expectBeep(2)  // the apply, then the end
      .expectMessage(saved);
  saveBanko(world.around, fields);
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
  PlainFields fields;
  fields.chosen = 2;
  fields.texts = {"49", "1"};
  world.boxes.expectBeep().expectQuestion(saveQuestion, true).expectBeep(2).expectMessage(saved);
  saveBanko(world.around, fields);
  const Bytes bytes = world.files.bytes("KARVENIS.DAT");
  ASSERT_EQ(bytes.size(), 106U);
  EXPECT_EQ(Bytes(bytes.begin(), bytes.begin() + 100), Bytes(100));
  EXPECT_EQ(Bytes(bytes.begin() + 100, bytes.end()), hex("02 00 31 00 01 00"));
}

TEST(SaveBanko, NoAppliesNothing) {
  World world;
  PlainFields fields;
  setBanko(world.state, {48});
  fields.chosen = 1;
  fields.texts = {"7"};
  world.boxes.expectBeep().expectQuestion(saveQuestion, false);
  saveBanko(world.around, fields);
  EXPECT_EQ(bankoOf(world.state), Set{48});
  EXPECT_EQ(fields.texts, Texts{"7"});
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
  PlainFields fields;
  fields.chosen = 1;
  fields.texts = {"7"};
  world.boxes.expectBeep().expectQuestion(saveQuestion, true).expectBeep();
  EXPECT_THROW(saveBanko(around, fields), RunTimeError);
  EXPECT_EQ(bankoOf(world.state), Set{7});
  EXPECT_EQ(fields.texts, Texts{"7"});
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
