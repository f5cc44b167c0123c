#include "platform/qt/QtPrinter.h"

#include <gtest/gtest.h>

#include <functional>

#include "platform/RunTimeError.h"

namespace karvenis {
namespace {

/// No print server answers, so there is no queue. Printing on a real one is a desktop test.
class QtPrinterWithoutQueue : public testing::Test {
 protected:
  QtPrinter printer;
  static void SetUpTestSuite() { qputenv("CUPS_SERVER", "/nowhere/socket"); }
  static void TearDownTestSuite() { qunsetenv("CUPS_SERVER"); }
};

TEST_F(QtPrinterWithoutQueue, RefusesEveryCall) {
  const std::vector<std::function<void()>> calls = {
      [this] { printer.fontSize(11); }, [this] { printer.currentX(1000); },
      [this] { printer.currentY(500); }, [this] { printer.printLine("Kolon 1"); },
      [this] { printer.endDocument(); }};
  for (const auto& call : calls) {
    try {
      call();
      ADD_FAILURE() << "went through";
    } catch (const RunTimeError& error) {
      EXPECT_EQ(error.fault(), Fault::printer);
      EXPECT_EQ(error.reason(), "yazıcı kullanılamıyor");
    }
  }
}

TEST_F(QtPrinterWithoutQueue, GivesUpADocumentThatWasNeverBegun) {
  printer.killDocument();
  EXPECT_THROW(printer.endDocument(), RunTimeError);
}

}  // namespace
}  // namespace karvenis
