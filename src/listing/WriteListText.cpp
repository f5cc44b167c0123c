#include <memory>

#include "core/CaptionLine.h"
#include "core/Numbers.h"
#include "listing/ListText.h"
#include "listing/Listing.h"

namespace karvenis {
namespace {

constexpr char textFile[] = "KARVENIS.TXT";
constexpr char lineEnd[] = "\r\n";
constexpr std::size_t blockSize = std::size_t{1} << 16;

/// A text file that is written from its start, in blocks.
class TextFile {
 public:
  explicit TextFile(Files& files) : file_(files.open(textFile)) {}

  void put(std::string_view text) {
    block_ += text;
    if (block_.size() >= blockSize) flush();
  }
  /// Bytes put so far.
  std::uint64_t written() const { return flushed_ + block_.size(); }
  void close() {
    flush();
    file_->close();
  }

 private:
  void flush() {
    file_->write(flushed_, std::as_bytes(std::span(block_)));
    flushed_ += block_.size();
    block_.clear();
  }

  std::unique_ptr<File> file_;
  std::string block_;
  std::uint64_t flushed_ = 0;
};

/// Shows a byte's number behind a fixed text in a title.
class Progress {
 public:
  Progress(TitleBar& title, std::string_view text) : title_(title), text_(text) {}
  void show(std::uint64_t byte) {
    caption_.start(text_).addWithBlank(static_cast<std::int64_t>(byte));
    title_.setCaption(caption_.text());
  }

 private:
  TitleBar& title_;
  std::string_view text_;
  CaptionLine caption_;
};

/// Puts `text` one character at a time and shows the number of each.
void putCharacters(TextFile& file, Progress& progress, std::string_view text) {
  for (const char& c : text) {
    file.put({&c, 1});
    progress.show(file.written());
  }
}

/// Puts a line for each record and shows, behind each, the number of the next free byte.
void putColumns(ColumnFile& list, TextFile& file, Progress& progress, ListRange range) {
  const std::size_t digits = digitCount(range.last);
  std::string line;
  for (std::int64_t number = range.first; number <= range.last; ++number) {
    line.clear();
    appendColumnLine(line, static_cast<std::int32_t>(number), digits, list.at(number).Balls);
    line += lineEnd;
    file.put(line);
    progress.show(file.written() + 1);
  }
}

}  // namespace

void WriteListText(Surroundings& around, TitleBar& title, ColumnFile& list, const Listing& listing,
                   ListRange range) {
  if (around.files.exists(textFile)) around.files.discard(textFile);
  TextFile file(around.files);
  std::string head = std::string("< KARVENIS 2005 Randomizer >") + lineEnd;
  head += listing.heading + singleBytes(around.clock.date()) + listing.headingEnd + lineEnd;
  head += lineEnd;

  title.setCaption(listing.startTitle);
  Progress progress(title, listing.progress);
  putCharacters(file, progress, head);
  putColumns(list, file, progress, range);
  Progress totalProgress(title, "BYTE=");
  putCharacters(file, totalProgress, lineEnd + totalLine(range.count()) + lineEnd);
  file.close();

  title.setCaption(listing.title);
  around.boxes.beep();
  around.boxes.message(withBlank(static_cast<std::int64_t>(around.files.length(textFile))) +
                           " byte \"KARVENIS.TXT\" dosyasına yazıldı.",
                       "KARVENIS 2005 Randomizer");
}

}  // namespace karvenis
