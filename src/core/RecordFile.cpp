#include "core/RecordFile.h"

#include <algorithm>

#include "core/Checked.h"

namespace karvenis {

std::int32_t recordCount(std::uint64_t bytes, std::size_t recordLength) {
  const std::uint64_t whole = bytes / recordLength;
  const std::uint64_t twiceRest = 2 * (bytes % recordLength);
  const bool up = twiceRest > recordLength || (twiceRest == recordLength && whole % 2 == 1);
  return checked<std::int32_t>(static_cast<std::int64_t>(whole + (up ? 1 : 0)));
}

RecordFile::RecordFile(Files& files, const std::string& name, std::size_t recordLength)
    : name_(name), recordLength_(recordLength), file_(files.open(name)) {
  length_ = file_->length();
}

RecordFile::~RecordFile() {
  try {
    close();
  } catch (const RunTimeError&) {
    // Reached only while another fault is on its way to the user.
  }
}

void RecordFile::read(std::int64_t number, std::span<std::byte> record) {
  std::ranges::copy(inBlock(number), record.begin());
}

void RecordFile::write(std::int64_t number, std::span<const std::byte> record) {
  const std::span<std::byte> place = inBlock(number);
  std::ranges::copy(record, place.begin());
  const auto from = static_cast<std::size_t>(place.data() - block_.data());
  dirtyFrom_ = dirtyTo_ == 0 ? from : std::min(dirtyFrom_, from);
  dirtyTo_ = std::max(dirtyTo_, from + recordLength_);
  length_ = std::max(length_, blockStart_ + from + recordLength_);
}

void RecordFile::close() {
  if (!file_) return;
  const std::unique_ptr<File> closing = std::move(file_);
  file_.reset();
  flush(*closing);
  if (written_) closing->sync();
  closing->close();
}

/// The bytes of record `number` inside the block, which is moved there when it lies elsewhere.
std::span<std::byte> RecordFile::inBlock(std::int64_t number) {
  if (number < 1) throw RunTimeError(Fault::read, name_, "kayıt no " + std::to_string(number));
  const std::uint64_t offset = static_cast<std::uint64_t>(number - 1) * recordLength_;
  const std::size_t blockLength = blockSize - blockSize % recordLength_;
  const std::uint64_t start = offset - offset % blockLength;
  if (block_.empty() || start != blockStart_) {
    flush(*file_);
    blockStart_ = start;
    std::vector<std::byte> block(blockLength);
    block_.clear();  // a read that fails leaves no block
    file_->read(start, block);
    block_ = std::move(block);
  }
  return std::span(block_).subspan(static_cast<std::size_t>(offset - start), recordLength_);
}

void RecordFile::flush(File& file) {
  if (dirtyTo_ == 0) return;
  const auto dirty = std::span<const std::byte>(block_).subspan(dirtyFrom_, dirtyTo_ - dirtyFrom_);
  dirtyFrom_ = dirtyTo_ = 0;
  file.write(blockStart_ + static_cast<std::uint64_t>(dirty.data() - block_.data()), dirty);
  written_ = true;
}

}  // namespace karvenis
