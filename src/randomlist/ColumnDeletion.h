#pragma once

#include <cstdint>

#include "core/Surroundings.h"

namespace karvenis {

/// The deletion of one column from the random column file.
class ColumnDeletion {
 public:
  explicit ColumnDeletion(Surroundings& around) : around_(around) {}

  /// Deletes the scratch file of an interrupted deletion and counts the columns. Returns false if
  /// there is no file to delete from. What fails is skipped.
  [[nodiscard]] bool load();

  /// Deletes column `DelNo` (1..count) without a question. Any other number gives the warning and
  /// false, and nothing is touched. A file whose length has changed since it was counted is counted
  /// again first. Throws RunTimeError if a file fails; the list is then as it was.
  [[nodiscard]] bool remove(std::int32_t DelNo);

 private:
  void count();

  Surroundings& around_;
  std::int32_t RndCount = 0;
  std::uint64_t countedLength_ = 0;  // the file's bytes that RndCount stands for
};

}  // namespace karvenis
