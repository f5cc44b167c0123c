#include "core/RecordFile.h"

#include <algorithm>
#include <tuple>

#include "core/Checked.h"

namespace karvenis {

std::int32_t recordCount(std::uint64_t bytes, std::size_t recordLength) {
  const std::uint64_t whole = bytes / recordLength;
  const std::uint64_t twiceRest = 2 * (bytes % recordLength);
  const bool up = twiceRest > recordLength || (twiceRest == recordLength && whole % 2 == 1);
  return checked<std::int32_t>(whole + (up ? 1 : 0));
}

RecordFile::RecordFile(Files& files, const std::string& name, std::size_t recordLength)
    : name_(name), recordLength_(recordLength), file_(files.open(name)) {
  length_ = file_->length();
}

RecordFile::~RecordFile() {
  try {
    close();
  } catch (const RunTimeError&) {
    // Happens only while another fault is on its way to the user.
  }
}

void RecordFile::read(std::int64_t number, std::span<std::byte> record) {
  const std::size_t place = placeInBlock(number);
  std::copy_n(block_.data() + place, recordLength_, record.data());
}

void RecordFile::write(std::int64_t number, std::span<const std::byte> record) {
  const std::size_t place = placeInBlock(number);
  std::copy_n(record.data(), recordLength_, block_.data() + place);
  dirtyFrom_ = dirtyTo_ == 0 ? place : std::min(dirtyFrom_, place);
  dirtyTo_ = std::max(dirtyTo_, place + recordLength_);
  length_ = std::max(length_, blockStart_ + place + recordLength_);
}

void RecordFile::close() {
  if (!file_) return;
  const std::unique_ptr<File> closing = std::move(file_);
  flush(*closing);
  if (written_) closing->sync();
  closing->close();
}

/// The place of record `number` in the block, which is moved there if it lies elsewhere.
std::size_t RecordFile::placeInBlock(std::int64_t number) {
  if (number < 1) throw RunTimeError(Fault::read, name_, "kayıt no " + std::to_string(number));
  const std::uint64_t offset = static_cast<std::uint64_t>(number - 1) * recordLength_;
  if (offset < blockStart_ || offset - blockStart_ >= block_.size()) moveBlock(offset);
  return offset - blockStart_;
}

/// Moves the block to the one that holds byte `offset`.
void RecordFile::moveBlock(std::uint64_t offset) {
  flush(*file_);
  std::vector<std::byte> block(blockSize - blockSize % recordLength_);
  blockStart_ = offset - offset % block.size();
  block_.clear();                                 // a read that fails leaves no block
  std::ignore = file_->read(blockStart_, block);  // what lies past the end stays 0
  block_ = std::move(block);
}

void RecordFile::flush(File& file) {
  if (dirtyTo_ == 0) return;
  const auto dirty = std::span<const std::byte>(block_).subspan(dirtyFrom_, dirtyTo_ - dirtyFrom_);
  const std::uint64_t offset = blockStart_ + dirtyFrom_;
  dirtyFrom_ = dirtyTo_ = 0;
  file.write(offset, dirty);
  written_ = true;
}

}  // namespace karvenis
