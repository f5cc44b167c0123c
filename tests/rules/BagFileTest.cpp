#include "bag/BagFile.h"

#include <gtest/gtest.h>

#include "doubles/Doubles.h"
#include "doubles/Sets.h"

namespace karvenis {
namespace {

TEST(BagFile, WordsAreLittleEndianAndSigned) {
  World world;
  setBanko(world.state, {0x0102, -2});
  BagFile file(world.files);
  file.write(world.state.Banko);
  EXPECT_EQ(file.length(), 106);
  file.close();
  Bytes bytes(100);
  for (const std::byte byte : hex("02 00 02 01 FE FF")) bytes.push_back(byte);
  EXPECT_EQ(world.files.bytes("KARVENIS.DAT"), bytes);
  BagFile again(world.files);
  EXPECT_EQ(again.bagCount(), 0);
  EXPECT_EQ(again.bankoCount(), 2);
  EXPECT_EQ(again.bankos(2), world.state.Banko);
  EXPECT_EQ(again.bankos(3).balls().back(), 0) << "past the end";
}

}  // namespace
}  // namespace karvenis
