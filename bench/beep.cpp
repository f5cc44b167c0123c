// What a beep costs the window's thread: the first one, which starts the player, and later ones.
// Beside the main window, so that the process is as large as the program. Medians and the worst.
//
// usage: beep [ROUNDS]

#include <sys/wait.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <vector>

#include "BenchWorld.h"
#include "main/frmLoto.h"
#include "platform/qt/Application.h"
#include "platform/qt/Bell.h"
#include "platform/qt/Forms.h"
#include "platform/qt/Look.h"

namespace {

using karvenis::median;

void report(const char* what, const std::vector<double>& seconds) {
  std::printf("%-12s %7.3f ms, at worst %7.3f ms (%zu rings)\n", what, median(seconds) * 1e3,
              *std::ranges::max_element(seconds) * 1e3, seconds.size());
}

}  // namespace

int main(int argc, char** argv) {
  using namespace karvenis;
  const int rounds = argc > 1 ? std::atoi(argv[1]) : 100;
  qputenv("QT_QPA_PLATFORM", "offscreen");
  Application application(argc, argv);
  applyLook();
  BenchWorld world;
  Forms forms(world.boxes);
  Surroundings around{world.state, world.boxes,   world.clock, world.chance,
                      world.files, world.printer, forms};
  forms.add("frmLoto", [&] { return new frmLoto(around); });
  forms.show("frmLoto");
  forms.find("frmLoto")->repaint();

  std::vector<double> first;
  std::vector<double> later;
  for (int round = 0; round < rounds; ++round) {
    {
      Bell bell(QStringLiteral(KARVENIS_BELL));
      first.push_back(secondsOf([&] { bell.ring(); }));
      for (int ring = 0; ring < 6; ++ring) later.push_back(secondsOf([&] { bell.ring(); }));
    }
    ::wait(nullptr);  // so that the next round has the processor for itself
  }
  report("first beep", first);
  report("later beeps", later);
  return 0;
}
