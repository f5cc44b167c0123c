#include <tuple>

// A column file: any bytes are shown, drawn from, listed and filtered, or end in the one fault.
#include "comblist/CombinationList.h"
#include "comblist/Filters.h"
#include "fuzz/Fuzz.h"
#include "listing/Listing.h"
#include "main/NewColumn.h"
#include "randomlist/RandomColumnList.h"

namespace karvenis {
namespace {

class NoSurface final : public TextSurface {
 public:
  void cls() override {}
  double currentX() const override { return 0; }
  void currentX(double) override {}
  void currentY(double) override {}
  void foreColor(QBColor) override {}
  void letterWidth(int) override {}
  void print(const std::string&) override {}
  void printLine(const std::string&) override {}
};

void look(QuietWorld& world) {
  ListPage page;
  NoSurface surface;
  allowingFaults([&] { ShowRndPage(world.around, page, surface, world.title); });
  allowingFaults([&] { ShowPage(world.around, page, surface, world.title); });
  allowingFaults([&] { std::ignore = PickFromList(world.around); });
  allowingFaults([&] { listRandomColumns(world.around, world.title, Output::text); });
}

const Target columnFile("column_file", [](const std::uint8_t* data, std::size_t size) {
  const Bytes bytes = bytesOf(data, size);
  QuietWorld world;
  world.files.folder = {{randomColumns, bytes}, {combinationList, bytes}};
  look(world);
  require(world.files.bytes(randomColumns) == bytes && world.files.bytes(combinationList) == bytes);
  world.boxes.typed = "7-12";
  ListPage page;
  allowingFaults([&] { filterList(Filter::FilterWantedPairs, world.around, page, world.title); });
  world.boxes.typed = "1";
  allowingFaults([&] { DeleteColumn(world.around, page); });
  allowingFaults([&] { appendToCombinationList(world.around, page); });
  require(world.files.bytes(randomColumns) == bytes);
});

}  // namespace
}  // namespace karvenis
