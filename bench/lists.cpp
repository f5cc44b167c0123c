// The lists' actions on 32767 columns against the least that does the same work: page turns, the
// text file, append, copy and deletion. In turn, medians.
//
// usage: lists [ROUNDS]

#include <fcntl.h>

#include <QApplication>
#include <QKeyEvent>
#include <QPushButton>
#include <QWindow>
#include <array>
#include <cstdio>
#include <cstdlib>
#include <tuple>

#include "BenchWorld.h"
#include "listing/frmRLPrint.h"
#include "platform/qt/Application.h"
#include "platform/qt/Forms.h"
#include "platform/qt/Look.h"
#include "randomlist/ColumnDeletion.h"
#include "randomlist/RandomColumnList.h"
#include "randomlist/frmRndLst.h"

namespace {

using namespace karvenis;

constexpr int columns = 32767;

/// Puts a list of `count` columns under `name`.
void makeList(const char* name, int count) {
  std::vector<char> bytes(static_cast<std::size_t>(count) * ColumnRecord::size);
  for (std::size_t at = 0; at < bytes.size(); at += ColumnRecord::size) {
    for (std::size_t k = 0; k < ballsInColumn; ++k) {
      bytes[at + 4 + 2 * k] = static_cast<char>(1 + (at / ColumnRecord::size + 8 * k) % ballsInAll);
    }
  }
  FILE* file = std::fopen(name, "wb");
  if (std::fwrite(bytes.data(), 1, bytes.size(), file) != bytes.size()) std::abort();
  std::fclose(file);
}

std::vector<char> contentOf(const char* name) {
  std::vector<char> bytes(std::filesystem::file_size(name));
  FILE* file = std::fopen(name, "rb");
  if (std::fread(bytes.data(), 1, bytes.size(), file) != bytes.size()) std::abort();
  std::fclose(file);
  return bytes;
}

void writeAtOnce(const char* name, const char* bytes, std::size_t length, bool synced) {
  const int file = ::open(name, O_WRONLY | O_CREAT | O_TRUNC, 0666);
  if (::write(file, bytes, length) != static_cast<ssize_t>(length)) std::abort();
  if (synced && ::fsync(file) != 0) std::abort();
  ::close(file);
}

void plainCopy() {
  const std::vector<char> bytes = contentOf(randomColumns);
  writeAtOnce("plain.copy", bytes.data(), bytes.size(), true);
}

/// The same lines as the C library formats them, in one write.
void plainText() {
  const std::vector<char> bytes = contentOf(randomColumns);
  const auto ballsOf = [&](int number) {
    std::array<int, ballsInColumn> balls{};
    for (std::size_t k = 0; k < balls.size(); ++k) {
      balls[k] = bytes[static_cast<std::size_t>(number - 1) * ColumnRecord::size + 4 + 2 * k];
    }
    return balls;
  };
  std::string text =
      "< KARVENIS 2005 Randomizer >\r\n"
      "Rastgele Kolon Listesi [ 21.11.2026 ] \r\n\r\n";
  std::array<char, 64> line{};
  for (int number = 1; number <= columns; ++number) {
    const auto [a, b, c, d, e, f] = ballsOf(number);
    text.append(line.data(), static_cast<std::size_t>(std::snprintf(
                                 line.data(), line.size(),
                                 "Kolon %05d - %02d, %02d, %02d, %02d, %02d, %02d  [%03d]\r\n",
                                 number, a, b, c, d, e, f, a + b + c + d + e + f)));
  }
  text += "\r\n< Toplam 32767 kolon. >\r\n";
  writeAtOnce("plain.txt", text.data(), text.size(), false);
}

/// The same lines from a table of two-digit numbers, in one write.
void leastText() {
  static const auto twoDigits = [] {
    std::array<std::array<char, 2>, 100> table{};
    for (std::size_t n = 0; n < table.size(); ++n) {
      table[n] = {static_cast<char>('0' + n / 10), static_cast<char>('0' + n % 10)};
    }
    return table;
  }();
  const std::vector<char> bytes = contentOf(randomColumns);
  const auto put = [](char* at, std::string_view text) { return std::ranges::copy(text, at).out; };
  const auto pair = [](char* at, unsigned number) {
    return std::ranges::copy(twoDigits[number], at).out;
  };
  std::string text(std::size_t{columns} * 46 + 200, ' ');
  char* end = put(text.data(),
                  "< KARVENIS 2005 Randomizer >\r\n"
                  "Rastgele Kolon Listesi [ 21.11.2026 ] \r\n\r\n");
  for (std::uint32_t number = 1; number <= columns; ++number) {
    const char* record = bytes.data() + (number - 1) * ColumnRecord::size;
    end = put(end, "Kolon ");
    *end++ = static_cast<char>('0' + number / 10000);
    end = pair(pair(end, number / 100 % 100), number % 100);
    end = put(end, " - ");
    unsigned sum = 0;
    for (std::size_t k = 0; k < ballsInColumn; ++k) {
      const auto ball = static_cast<unsigned char>(record[4 + 2 * k]);
      sum += ball;
      if (k > 0) end = put(end, ", ");
      end = pair(end, ball);
    }
    end = put(end, "  [");
    *end++ = static_cast<char>('0' + sum / 100);
    end = put(pair(end, sum % 100), "]\r\n");
  }
  end = put(end, "\r\n< Toplam 32767 kolon. >\r\n");
  text.resize(static_cast<std::size_t>(end - text.data()));
  writeAtOnce("least.txt", text.data(), text.size(), false);
}

double medianOf(int rounds, const std::function<void()>& before,
                const std::function<void()>& action) {
  std::vector<double> times;
  for (int round = 0; round < rounds; ++round) {
    before();
    times.push_back(secondsOf(action));
  }
  return median(times);
}

void report(const char* what, double seconds) {
  std::printf("%-44s %8.3f ms\n", what, seconds * 1e3);
}
void report(const char* what, double seconds, const char* least, double leastSeconds) {
  std::printf("%-44s %8.3f ms   %.2f times %s\n", what, seconds * 1e3, seconds / leastSeconds,
              least);
}

/// A page turn in the window: the key, the file and the painting.
double pageTurn(BenchWorld& world, int count, int rounds) {
  makeList(randomColumns, count);
  Forms forms(world.boxes);
  Surroundings around{world.state, world.boxes,   world.clock, world.chance,
                      world.files, world.printer, forms};
  forms.add("frmRndLst", [&] { return new frmRndLst(around); });
  forms.show("frmRndLst");
  Form* list = forms.find("frmRndLst");
  int turns = 0;
  return medianOf(
      rounds, [] {},
      [&] {
        const Qt::Key key = ++turns % 2 == 0 ? Qt::Key_PageDown : Qt::Key_End;
        QKeyEvent press(QEvent::KeyPress, turns % 5 == 0 ? Qt::Key_Home : key, Qt::NoModifier);
        QCoreApplication::sendEvent(list->windowHandle(), &press);
        list->repaint();
      });
}

/// The dialog's whole action: the click, the text file, its title and its boxes.
double windowText(BenchWorld& world, int rounds) {
  Forms forms(world.boxes);
  Surroundings around{world.state, world.boxes,   world.clock, world.chance,
                      world.files, world.printer, forms};
  forms.add("frmRLPrint", [&] { return new frmRLPrint(around); });
  forms.show("frmRLPrint");
  auto* command = forms.find("frmRLPrint")->findChild<QPushButton*>("Command1");
  return medianOf(
      rounds, [] { QCoreApplication::processEvents(); }, [&] { command->click(); });
}

}  // namespace

int main(int argc, char** argv) {
  const int rounds = argc > 1 ? std::atoi(argv[1]) : 41;
  qputenv("QT_QPA_PLATFORM", "offscreen");
  Application application(argc, argv);
  QApplication::setQuitOnLastWindowClosed(false);
  applyLook();
  BenchWorld world;

  report("page turn, 3 000 000 columns", pageTurn(world, 3'000'000, rounds));
  report("page turn, 32767 columns", pageTurn(world, columns, rounds));

  const auto nothing = [] {};
  const double least = medianOf(rounds, nothing, leastText);
  report("text file, from a table and one write", least);
  const double format = medianOf(rounds, nothing, plainText);
  report("text file, plain formatting and one write", format, "the table", least);
  const double rule = medianOf(rounds, nothing,
                               [&] { listRandomColumns(world.around, world.title, Output::text); });
  report("text file, rule", rule, "plain formatting", format);
  const double window = windowText(world, rounds);
  std::printf("%-44s %8.3f ms   on top of the rule\n", "text file, window", (window - rule) * 1e3);

  const double copy = medianOf(rounds, nothing, plainCopy);
  report("plain copy with sync", copy);
  const auto noList = [] { std::filesystem::remove(combinationList); };
  const auto oneColumn = [] { makeList(combinationList, 1); };
  const auto fullList = [] { makeList(combinationList, columns); };
  ListPage page;
  const auto append = [&] { appendToCombinationList(world.around, page); };
  report("append to no list", medianOf(rounds, noList, append), "the copy", copy);
  report("append to one column", medianOf(rounds, oneColumn, append), "the copy", copy);
  report("append to 32767 columns", medianOf(rounds, fullList, append), "the copy", copy);
  report("copy to no list", medianOf(rounds, noList, [&] { saveAsCombinationList(world.around); }),
         "the copy", copy);
  const auto freshColumns = [] { makeList(randomColumns, columns); };
  report("deletion of one column",
         medianOf(rounds, freshColumns,
                  [&] {
                    ColumnDeletion deletion(world.around);
                    std::ignore = deletion.load();
                    std::ignore = deletion.remove(16000);
                  }),
         "the copy", copy);
  return 0;
}
