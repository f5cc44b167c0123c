#pragma once

#include <gtest/gtest.h>

#include <QTest>

#include "AllWindows.h"
#include "doubles/Doubles.h"
#include "platform/SystemChance.h"
#include "platform/qt/Form.h"
#include "platform/qt/Forms.h"

namespace karvenis {

/// The program with all its windows, over boxes and files of the test's own; the clock is set and
/// the printer only keeps what it gets.
struct WholeProgram {
  WholeProgram(Boxes& boxes, Files& files)
      : forms(boxes), around{state, boxes, clock, chance, files, printer, forms} {
    addWindows(forms, around);
  }
  WholeProgram(const WholeProgram&) = delete;
  WholeProgram& operator=(const WholeProgram&) = delete;

  /// Shows the window and waits until it has the focus.
  Form* open(const char* name) {
    forms.show(name);
    Form* form = forms.find(name);
    EXPECT_TRUE(form != nullptr && QTest::qWaitForWindowActive(form));
    return form;
  }

  SharedState state;
  SetClock clock;
  SystemChance chance;
  RecordingPrinter printer;
  Forms forms;
  Surroundings around;
};

}  // namespace karvenis
