#include <memory>

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

/// Writes `text` one character at a time and shows the number of each byte behind `progress`.
void putCharacters(TextFile& file, std::string_view text, TitleBar& title,
                   const std::string& progress) {
  for (const char& c : text) {
    file.put({&c, 1});
    title.setCaption(progress + withBlank(file.written()));
  }
}

}  // namespace

void WriteListText(Surroundings& around, TitleBar& title, ColumnFile& list, const Listing& listing,
                   ListRange range) {
  if (around.files.exists(textFile)) around.files.remove(textFile);
  TextFile file(around.files);
  const std::string heading =
      listing.heading + singleBytes(around.clock.date()) + listing.headingEnd;

  title.setCaption(listing.startTitle);
  putCharacters(file, std::string(firstLine) + lineEnd + heading + lineEnd + lineEnd, title,
                listing.progress);
  eachColumnLine(list, range, [&](const std::string& line) {
    file.put(line);
    file.put(lineEnd);
    title.setCaption(listing.progress + withBlank(file.written() + 1));
  });
  putCharacters(file, lineEnd + totalLine(range.count()) + lineEnd, title, "BYTE=");
  file.close();

  title.setCaption(listing.title);
  around.boxes.beep();
  around.boxes.message(
      withBlank(around.files.length(textFile)) + " byte \"KARVENIS.TXT\" dosyasına yazıldı.",
      "KARVENIS 2005 Randomizer");
}

}  // namespace karvenis
