// The number of a column to delete: any text deletes one column or leaves the list as it was.
#include <functional>

#include "comblist/CombinationList.h"
#include "core/Numbers.h"
#include "fuzz/Fuzz.h"
#include "randomlist/ColumnDeletion.h"

namespace karvenis {
namespace {

const Target deletionNumber("deletion_number", [](const std::uint8_t* data, std::size_t size) {
  static const Bytes list = soundList(20);
  const std::string typed = textOf(data, size);
  const std::int32_t number = typedNumber32(typed);
  if (std::hash<std::string>()(typed) % 32 != 0 && size > 3) return;  // deleting takes long
  const bool there = number >= 1 && number <= 20;
  QuietWorld world;
  world.files.folder = {{randomColumns, list}, {combinationList, list}};
  world.boxes.typed = typed;
  ListPage page;
  DeleteColumn(world.around, page);
  ColumnDeletion deletion(world.around);
  require(deletion.load() && deletion.remove(number) == there);
  const std::size_t left = list.size() - (there ? ColumnRecord::size : 0);
  require(world.files.bytes(combinationList).size() == left);
  require(world.files.bytes(combinationList) == world.files.bytes(randomColumns));
  require(world.files.folder.size() == (there ? 3U : 2U));
});

}  // namespace
}  // namespace karvenis
