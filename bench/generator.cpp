// The generator's 32767 columns into a file, without the window system, against the least that a
// loop in C++ can do and against the same records from Python; in turn, medians. The folder of
// TMPDIR is where they write: on a real disk the waiting for it is most of the time, in memory
// (TMPDIR=/dev/shm) the work is all of it.
//
// usage: generator [ROUNDS]

#include <fcntl.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <numeric>
#include <random>
#include <tuple>

#include "BenchWorld.h"
#include "comblist/Generator.h"

namespace {

using namespace karvenis;

constexpr int columns = 32767;

void generate(BenchWorld& world) {
  Generator list(world.around, world.title);
  std::ignore = list.start(Generator::Mode::newList, std::to_string(columns));
}

/// Waits until what the descriptor stands for is on disk.
void sync(int descriptor) {
  if (::fsync(descriptor) != 0) std::abort();
  ::close(descriptor);
}

/// A partial shuffle, a sort, one write; and, if asked, the bytes and the name on disk.
void leastLoop(std::mt19937& random, bool synced) {
  std::vector<std::uint16_t> words(std::size_t{columns} * 8);
  std::array<std::uint16_t, 49> balls{};
  std::iota(balls.begin(), balls.end(), std::uint16_t{1});
  auto* word = words.data();
  for (std::uint32_t n = 1; n <= columns; ++n, word += 8) {
    for (std::size_t k = 0; k < 6; ++k) {
      std::uniform_int_distribution<std::uint32_t> place(static_cast<std::uint32_t>(k), 48);
      std::swap(balls[k], balls[place(random)]);
    }
    word[0] = static_cast<std::uint16_t>(n);
    std::copy_n(balls.begin(), 6, word + 2);
    std::sort(word + 2, word + 8);
  }
  const int file = ::open("least.lst", O_WRONLY | O_CREAT | O_TRUNC, 0666);
  const auto bytes = static_cast<ssize_t>(words.size() * 2);
  if (::write(file, words.data(), words.size() * 2) != bytes) std::abort();
  if (!synced) {
    ::close(file);
    return;
  }
  sync(file);
  sync(::open(".", O_RDONLY | O_DIRECTORY));
}

/// Seconds that Python needs, without its start.
double python() {
  constexpr char script[] = R"(python3 -c '
import random, struct, time
start = time.perf_counter()
with open("python.lst", "wb") as file:
    for n in range(1, 32768):
        file.write(struct.pack("<i6h", n, *sorted(random.sample(range(1, 50), 6))))
print(time.perf_counter() - start)
')";
  double seconds = 0;
  FILE* answer = ::popen(script, "r");
  if (answer == nullptr || std::fscanf(answer, "%lf", &seconds) != 1) std::abort();
  ::pclose(answer);
  return seconds;
}

void report(const char* what, double seconds, double ours) {
  std::printf("%-28s %8.2f ms   ours / it = %.2f\n", what, seconds * 1e3, ours / seconds);
}

}  // namespace

int main(int argc, char** argv) {
  const int rounds = argc > 1 ? std::atoi(argv[1]) : 21;
  BenchWorld world;
  std::mt19937 random(649);
  std::vector<double> ours;
  std::vector<double> least;
  std::vector<double> leastSynced;
  std::vector<double> snake;
  for (int round = 0; round < rounds; ++round) {
    std::filesystem::remove(combinationList);
    ours.push_back(secondsOf([&] { generate(world); }));
    std::filesystem::remove("least.lst");
    least.push_back(secondsOf([&] { leastLoop(random, false); }));
    std::filesystem::remove("least.lst");
    leastSynced.push_back(secondsOf([&] { leastLoop(random, true); }));
    if (round % 4 == 0) snake.push_back(python());
  }
  const double own = median(ours);
  std::printf("%d columns, %d rounds\n", columns, rounds);
  report("generator, on disk", own, own);
  report("least loop, on disk", median(leastSynced), own);
  report("least loop, not waiting", median(least), own);
  report("Python's random.sample", median(snake), own);
  return 0;
}
