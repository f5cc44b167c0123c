#include <gtest/gtest.h>

#include <limits>

#include "core/Draw.h"
#include "doubles/Doubles.h"
#include "doubles/Sets.h"
#include "main/NewColumn.h"
#include "main/Settings.h"

namespace karvenis {
namespace {

TEST(SettingsTest, AMissingFileGivesNoPlaceAndIsNotMade) {
  MemoryFiles files;
  EXPECT_FALSE(readPlace(files).has_value());
  EXPECT_TRUE(files.folder.empty());
}

TEST(SettingsTest, LessThanTwoWholeRecordsAreThePlaceZero) {
  for (std::size_t length = 0; length < 8; ++length) {
    MemoryFiles files;
    files.folder["KV2005.CFG"] = Bytes(length, std::byte{0x44});
    const auto place = readPlace(files);
    ASSERT_TRUE(place.has_value()) << length;
    EXPECT_EQ(place->top, 0);
    EXPECT_EQ(place->left, 0);
    EXPECT_EQ(files.bytes("KV2005.CFG").size(), length);
  }
}

TEST(SettingsTest, TopComesFirst) {
  MemoryFiles files;
  files.folder["KV2005.CFG"] = hex("00 00 61 44 00 00 16 44 FF FF");
  const auto place = readPlace(files);
  ASSERT_TRUE(place.has_value());
  EXPECT_EQ(place->top, 900);
  EXPECT_EQ(place->left, 600);
}

TEST(SettingsTest, WhatIsNoFiniteNumberIsNoPlace) {
  for (const char* bytes : {"00 00 C0 7F 00 00 00 00", "00 00 00 00 00 00 80 7F",
                            "00 00 80 FF 00 00 00 00", "01 00 80 7F 01 00 80 7F"}) {
    MemoryFiles files;
    files.folder["KV2005.CFG"] = hex(bytes);
    EXPECT_FALSE(readPlace(files).has_value()) << bytes;
  }
}

TEST(SettingsTest, WritingKeepsALongerFilesTail) {
  MemoryFiles files;
  files.folder["KV2005.CFG"] = hex("01 02 03 04 05 06 07 08 09 0A");
  writePlace(files, {900, 600});
  EXPECT_EQ(files.bytes("KV2005.CFG"), hex("00 00 61 44 00 00 16 44 09 0A"));
}

TEST(CanDraw, AsksForSixDistinctBallsOfBagAndBankos) {
  World world;
  EXPECT_TRUE(canDraw(world.state)) << "an empty bag stands for all balls";
  setBanko(world.state, {1, 2, 3, 4, 5});
  EXPECT_TRUE(canDraw(world.state));
  setBag(world.state, {6});
  EXPECT_TRUE(canDraw(world.state)) << "1 + 5";
  setBag(world.state, {5});
  EXPECT_FALSE(canDraw(world.state)) << "1 + 5, but not distinct";
  setBanko(world.state, {7, 20});
  setBag(world.state, {1, 2, 3});
  EXPECT_FALSE(canDraw(world.state)) << "3 + 2";
  setBag(world.state, {7, 20, 1, 2});
  EXPECT_FALSE(canDraw(world.state)) << "4 + 2, two of them the same";
}

TEST(PickFromListTest, AnEmptyListIsRefused) {
  World world;
  world.files.folder["KARVENIS.LST"] = Bytes(8);
  world.boxes.expectWarning("Kombinasyon Listesi dosyası boş!", " ! KARVENIS.LST geçersiz !");
  EXPECT_FALSE(PickFromList(world.around).has_value());
  EXPECT_TRUE(world.chance.seeds.empty());
}

TEST(PickFromListTest, ARecordThatIsNotWholeLeavesTheColumn) {
  World world;
  world.state.Drawn = column(1, 2, 3, 4, 5, 6);
  world.files.folder["KARVENIS.LST"] = columnBytes({{1, column(9, 9, 9, 9, 9, 9)}});
  world.files.folder["KARVENIS.LST"].resize(28);  // counts as two
  world.chance.script = {0.9F};
  world.boxes.expectBeep();
  const auto pick = PickFromList(world.around);
  ASSERT_TRUE(pick.has_value());
  EXPECT_EQ(pickTitle(*pick), " KARVENIS.LST  Kayıt = 2 [ 2 ]");
  EXPECT_EQ(world.state.Drawn, column(1, 2, 3, 4, 5, 6));
  EXPECT_EQ(world.files.bytes("KARVENIS.LST").size(), 28U);
}

TEST(PickFromListTest, BallsAreTakenAsTheyStand) {
  World world;
  world.files.folder["KARVENIS.LST"] = columnBytes({{-7, column(-1, 0, 50, 32767, -32768, 3)}});
  world.boxes.expectBeep();
  ASSERT_TRUE(PickFromList(world.around).has_value());
  EXPECT_EQ(world.state.Drawn, column(-1, 0, 50, 32767, -32768, 3));
  EXPECT_EQ(world.state.Record.Word, -7) << "through the shared buffer";
  EXPECT_EQ(world.state.FileNo, 0) << "and the file is closed";
}

TEST(PickFromListTest, BagAndBankosAreNotAsked) {
  World world;
  setBag(world.state, {5});
  world.files.folder["KARVENIS.LST"] = columnBytes({{1, column(1, 2, 3, 4, 5, 6)}});
  world.boxes.expectBeep();
  EXPECT_TRUE(PickFromList(world.around).has_value());
  EXPECT_EQ(world.chance.seeds.size(), 1U);
}

}  // namespace
}  // namespace karvenis
