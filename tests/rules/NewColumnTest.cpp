#include "main/NewColumn.h"

#include <gtest/gtest.h>

#include "doubles/Doubles.h"
#include "doubles/Sets.h"

namespace karvenis {
namespace {

TEST(PickFromList, AnEmptyListIsRefused) {
  World world;
  world.files.folder["KARVENIS.LST"] = Bytes(8);
  world.boxes.expectWarning("Kombinasyon Listesi dosyası boş!", " ! KARVENIS.LST geçersiz !");
  EXPECT_FALSE(PickFromList(world.around).has_value());
  EXPECT_TRUE(world.journal.of("seed").empty());
}

TEST(PickFromList, ARecordThatIsNotWholeLeavesTheColumn) {
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

TEST(PickFromList, BallsAreTakenAsTheyStand) {
  World world;
  world.files.folder["KARVENIS.LST"] = columnBytes({{-7, column(-1, 0, 50, 32767, -32768, 3)}});
  world.boxes.expectBeep();
  ASSERT_TRUE(PickFromList(world.around).has_value());
  EXPECT_EQ(world.state.Drawn, column(-1, 0, 50, 32767, -32768, 3));
  EXPECT_EQ(world.state.Record.Word, -7) << "through the shared buffer";
  EXPECT_EQ(world.state.FileNo, 0) << "and the file is closed";
}

TEST(PickFromList, BagAndBankosAreNotAsked) {
  World world;
  setBag(world.state, {5});
  world.files.folder["KARVENIS.LST"] = columnBytes({{1, column(1, 2, 3, 4, 5, 6)}});
  world.boxes.expectBeep();
  EXPECT_TRUE(PickFromList(world.around).has_value());
  EXPECT_EQ(world.journal.of("seed").size(), 1U);
}

}  // namespace
}  // namespace karvenis
