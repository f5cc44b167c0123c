#include <gtest/gtest.h>

#include <cerrno>
#include <tuple>

#include "core/Checked.h"
#include "core/ColumnFile.h"
#include "doubles/Doubles.h"
#include "platform/SystemErrorText.h"
#include "platform/qt/Form.h"
#include "platform/qt/Forms.h"

// The box that closes the program.

namespace karvenis {
namespace {

void expectBox(const RunTimeError& error) {
  World world;
  Forms forms(world.boxes);
  world.boxes.expectMessage(describe(error) + "\r\rProgram kapanacak.", errorTitle, Icon::critical);
  forms.fault(error);
  EXPECT_TRUE(forms.ending());
}

TEST(ClosingBox, ShowsEveryFaultWithEveryReason) {
  for (const Fault fault : {Fault::open, Fault::read, Fault::write, Fault::copy, Fault::remove,
                            Fault::rename, Fault::damaged, Fault::overflow, Fault::printer}) {
    for (const int error :
         {EACCES, EROFS, ENOSPC, EFBIG, EIO, EISDIR, EINVAL, ENOENT, EBADF, EAGAIN, ELOOP}) {
      expectBox(RunTimeError(fault, "KARVENIS.RND", systemErrorText(error)));
    }
  }
}

TEST(ClosingBox, ShowsWhatOutgrewItsNumberAndWhichRecordIsNone) {
  World world;
  const std::vector<std::function<void()>> faults = {
      [] { std::ignore = checked<std::int16_t>(32768); },
      [] {
        std::ignore = columnSum({32767, 1, 0, 0, 0, 0}, "KARVENIS.RND", 7);
      },
      [&] { std::ignore = ColumnFile(world.state, world.files, randomColumns).at(0); }};
  for (const auto& fault : faults) {
    try {
      fault();
      ADD_FAILURE() << "no fault";
    } catch (const RunTimeError& error) {
      expectBox(error);
    }
  }
}

}  // namespace
}  // namespace karvenis
