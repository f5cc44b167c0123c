#include "core/RecordFile.h"

#include <gtest/gtest.h>

#include <array>
#include <random>

#include "core/ColumnFile.h"
#include "doubles/Doubles.h"
#include "doubles/FailingFiles.h"

namespace karvenis {
namespace {

TEST(RecordCount, RoundsHalvesToEven) {
  const std::vector<std::pair<std::uint64_t, std::int32_t>> rows = {
      {0, 0},  {7, 0},  {8, 0},  {9, 1},  {15, 1}, {16, 1}, {23, 1},
      {24, 2}, {25, 2}, {39, 2}, {40, 2}, {41, 3}, {56, 4}, {524272, 32767}};
  for (const auto& [bytes, count] : rows) EXPECT_EQ(recordCount(bytes, 16), count) << bytes;
}

TEST(RecordCount, BeyondThirtyTwoBitsIsAFault) {
  EXPECT_EQ(recordCount(std::uint64_t{2147483647} * 16, 16), 2147483647);
  EXPECT_THROW(std::ignore = recordCount(std::uint64_t{2147483648} * 16, 16), RunTimeError);
}

TEST(RecordFile, ReadsZerosPastTheEnd) {
  MemoryFiles files;
  files.folder["F"] = hex("01 02 03");
  RecordFile file(files, "F", 2);
  Bytes record(2);
  file.read(2, record);
  EXPECT_EQ(record, hex("03 00"));
  file.read(7, record);
  EXPECT_EQ(record, hex("00 00"));
  file.close();
  EXPECT_EQ(files.bytes("F"), hex("01 02 03")) << "reading changes nothing";
}

TEST(RecordFile, FillsAGapWithZeros) {
  MemoryFiles files;
  RecordFile file(files, "F", 2);
  file.write(3, hex("05 06"));
  EXPECT_EQ(file.length(), 6U);
  file.close();
  EXPECT_EQ(files.bytes("F"), hex("00 00 00 00 05 06"));
}

TEST(RecordFile, RefusesNumbersBelowOne) {
  MemoryFiles files;
  RecordFile file(files, "F", 2);
  Bytes record(2);
  EXPECT_THROW(file.read(0, record), RunTimeError);
  EXPECT_THROW(file.write(-1, record), RunTimeError);
}

TEST(RecordFile, AgreesWithPlainBytesOverRandomAccesses) {
  std::mt19937 random(7);
  for (int round = 0; round < 20; ++round) {
    const std::size_t size = round % 2 == 0 ? 16 : 12;  // a block of memory is no multiple of 12
    MemoryFiles files;
    files.folder["F"].resize(random() % 200'000);
    for (auto& byte : files.folder["F"]) byte = static_cast<std::byte>(random());
    Bytes model = files.folder["F"];
    RecordFile file(files, "F", size);
    for (int step = 0; step < 400; ++step) {
      const std::size_t at = random() % 15'000;
      Bytes record(size);
      if (random() % 2 == 0) {
        for (auto& byte : record) byte = static_cast<std::byte>(random());
        file.write(static_cast<std::int64_t>(at + 1), record);
        if (model.size() < (at + 1) * size) model.resize((at + 1) * size);
        std::ranges::copy(record, model.begin() + static_cast<std::ptrdiff_t>(at * size));
      } else {
        file.read(static_cast<std::int64_t>(at + 1), record);
        Bytes expected(size);
        for (std::size_t i = 0; i < size && at * size + i < model.size(); ++i) {
          expected[i] = model[at * size + i];
        }
        ASSERT_EQ(record, expected);
      }
      ASSERT_EQ(file.length(), model.size());
    }
    file.close();
    ASSERT_EQ(files.bytes("F"), model);
  }
}

TEST(RecordFile, ABlockThatIsInTheFileIsNotWrittenAgain) {
  MemoryFiles memory;
  FailingFiles files(memory);
  RecordFile file(files, "F", 2);
  Bytes record = hex("05 06");
  file.write(1, record);
  EXPECT_EQ(files.calls(), 3) << "opened, asked for its length, read";
  file.read(40'000, record);
  EXPECT_EQ(files.calls(), 5) << "written, read elsewhere";
  file.close();
  EXPECT_EQ(files.calls(), 7) << "put on disk, closed";
}

TEST(ColumnRecord, HasItsGoldenBytes) {
  std::array<std::byte, 16> bytes{};
  encode({417, column(1, 2, 300, -1, 32767, -32768)}, bytes);
  EXPECT_EQ(Bytes(bytes.begin(), bytes.end()),
            hex("A1 01 00 00 01 00 02 00 2C 01 FF FF FF 7F 00 80"));
  EXPECT_EQ(decodeColumn(bytes), (ColumnRecord{417, column(1, 2, 300, -1, 32767, -32768)}));
}

TEST(ColumnSum, ThatDoesNotFitIsADamagedColumn) {
  EXPECT_EQ(columnSum(column(1, 2, 3, 4, 5, 6), "F", 1), 21);
  EXPECT_EQ(columnSum(column(32767, -1, 1, 0, 0, 0), "F", 1), 32767);
  EXPECT_THROW(std::ignore = columnSum(column(32767, 1, -1, 0, 0, 0), "F", 1), RunTimeError);
  try {
    std::ignore = columnSum(column(-32768, -1, 0, 0, 0, 0), "KARVENIS.LST", 7);
    ADD_FAILURE() << "no fault";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(describe(error),
              "'KARVENIS.LST' dosyasında bozuk bir kolon var.\rNeden: 7. kolonun sayılarının "
              "toplamı sığmıyor.");
  }
}

TEST(RecordFile, ARecordNumberBelowOneIsAFaultThatTellsIt) {
  MemoryFiles files;
  RecordFile file(files, "F", 2);
  std::array<std::byte, 2> record{};
  try {
    file.read(0, record);
    ADD_FAILURE() << "no fault";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.fault(), Fault::read);
    EXPECT_EQ(error.reason(), "kayıt no 0");
  }
}

}  // namespace
}  // namespace karvenis
