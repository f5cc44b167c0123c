#pragma once

#include <cstdint>

#include "core/Surroundings.h"

namespace karvenis {

/// The deletion of one column from the random column file. The file has no deletion mark: every
/// other record is copied to a scratch file, which then takes the file's place.
class ColumnDeletion {
 public:
  explicit ColumnDeletion(Surroundings& around) : around_(around) {}

  /// Deletes the scratch file of an interrupted deletion and counts the columns. Returns false
  /// where there is no file to delete from. What fails is skipped.
  bool load();

  /// Deletes column `DelNo` (1..count) without a question. Any other number gives the warning and
  /// false, and nothing is touched. A file whose length has changed since it was counted is counted
  /// again first. Throws RunTimeError where a file fails; the list is then as it was.
  bool remove(std::int32_t DelNo);

 private:
  void count();
  void copyWithout(std::int32_t DelNo);

  Surroundings& around_;
  std::int32_t RndCount = 0;
  std::uint64_t countedLength_ = 0;  // the file's bytes that RndCount stands for
};

}  // namespace karvenis
