#include "main/Settings.h"

#include <gtest/gtest.h>

#include "doubles/Doubles.h"

namespace karvenis {
namespace {

TEST(Settings, AMissingFileGivesNoPlaceAndIsNotMade) {
  MemoryFiles files;
  EXPECT_FALSE(readPlace(files).has_value());
  EXPECT_TRUE(files.folder.empty());
}

TEST(Settings, LessThanTwoWholeRecordsAreThePlaceZero) {
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

TEST(Settings, TopComesFirst) {
  MemoryFiles files;
  files.folder["KV2005.CFG"] = hex("00 00 61 44 00 00 16 44 FF FF");
  const auto place = readPlace(files);
  ASSERT_TRUE(place.has_value());
  EXPECT_EQ(place->top, 900);
  EXPECT_EQ(place->left, 600);
}

TEST(Settings, WhatIsNoFiniteNumberIsNoPlace) {
  for (const char* bytes : {"00 00 C0 7F 00 00 00 00", "00 00 00 00 00 00 80 7F",
                            "00 00 80 FF 00 00 00 00", "01 00 80 7F 01 00 80 7F"}) {
    MemoryFiles files;
    files.folder["KV2005.CFG"] = hex(bytes);
    EXPECT_FALSE(readPlace(files).has_value()) << bytes;
  }
}

TEST(Settings, WritingKeepsALongerFilesTail) {
  MemoryFiles files;
  files.folder["KV2005.CFG"] = hex("01 02 03 04 05 06 07 08 09 0A");
  writePlace(files, {900, 600});
  EXPECT_EQ(files.bytes("KV2005.CFG"), hex("00 00 61 44 00 00 16 44 09 0A"));
}

}  // namespace
}  // namespace karvenis
