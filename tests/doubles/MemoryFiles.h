#pragma once

#include <algorithm>
#include <cstring>
#include <map>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "doubles/Journal.h"
#include "platform/Files.h"
#include "platform/RunTimeError.h"

namespace karvenis {

using Bytes = std::vector<std::byte>;

/// Whether both hold the same bytes. Far quicker than ==, which compares them one by one.
inline bool isSame(const Bytes& a, const Bytes& b) {
  return a.size() == b.size() && (a.empty() || std::memcmp(a.data(), b.data(), a.size()) == 0);
}

/// A folder in memory, without rights.
class MemoryFiles : public Files, public Journaling {
 public:
  std::map<std::string, Bytes> folder;

  Bytes bytes(const std::string& name) const {
    const auto found = folder.find(name);
    return found == folder.end() ? Bytes{} : found->second;
  }
  std::string text(const std::string& name) const {
    const Bytes all = bytes(name);
    return {reinterpret_cast<const char*>(all.data()), all.size()};
  }

  std::unique_ptr<File> open(const std::string& name) override {
    note("open", name);
    return std::make_unique<Open>(*this, name, folder[name]);
  }
  bool exists(const std::string& name) override { return folder.contains(name); }
  std::uint64_t length(const std::string& name) override {
    return found(name, Fault::read)->second.size();
  }
  void refuseProtected(const std::string&) override {}
  void copy(const std::string& from, const std::string& to) override {
    note("copy", from + " " + to);
    folder[to] = Bytes(found(from, Fault::copy)->second);
  }
  void remove(const std::string& name) override {
    note("remove", name);
    folder.erase(found(name, Fault::remove));
  }
  void rename(const std::string& from, const std::string& to) override {
    note("rename", from + " " + to);
    Bytes moved = std::move(found(from, Fault::rename)->second);
    folder.erase(from);
    folder[to] = std::move(moved);
  }
  std::string currentFolder() override { return "/memory"; }

 private:
  std::map<std::string, Bytes>::iterator found(const std::string& name, Fault fault) {
    const auto file = folder.find(name);
    if (file == folder.end()) throw RunTimeError(fault, name, "no such file");
    return file;
  }

  class Open final : public File {
   public:
    Open(const MemoryFiles& door, std::string name, Bytes& content)
        : door_(door), name_(std::move(name)), content_(content) {}
    std::size_t read(std::uint64_t offset, std::span<std::byte> into) override {
      if (offset >= content_.size()) return 0;
      const std::size_t count = std::min(into.size(), content_.size() - offset);
      std::copy_n(content_.begin() + static_cast<std::ptrdiff_t>(offset), count, into.begin());
      return count;
    }
    void write(std::uint64_t offset, std::span<const std::byte> data) override {
      door_.note("write", name_);
      if (content_.size() < offset + data.size()) content_.resize(offset + data.size());
      std::copy_n(data.data(), data.size(), content_.data() + offset);
    }
    std::uint64_t length() override { return content_.size(); }
    void takeRightsOf(const std::string&) override {}
    void sync() override { door_.note("sync", name_); }
    void close() override { door_.note("close", name_); }

   private:
    const MemoryFiles& door_;
    std::string name_;
    Bytes& content_;
  };
};

/// Bytes from hexadecimal digits ("07 00"); blanks are skipped.
inline Bytes hex(std::string_view digits) {
  Bytes bytes;
  std::string pair;
  for (const char c : digits) {
    if (c == ' ') continue;
    pair += c;
    if (pair.size() == 2) {
      bytes.push_back(static_cast<std::byte>(std::stoi(pair, nullptr, 16)));
      pair.clear();
    }
  }
  return bytes;
}

/// 16-bit little-endian words as bytes.
inline Bytes words(const std::vector<int>& numbers) {
  Bytes bytes;
  for (const int number : numbers) {
    bytes.push_back(static_cast<std::byte>(static_cast<unsigned>(number) & 0xFFU));
    bytes.push_back(static_cast<std::byte>((static_cast<unsigned>(number) >> 8U) & 0xFFU));
  }
  return bytes;
}

}  // namespace karvenis
