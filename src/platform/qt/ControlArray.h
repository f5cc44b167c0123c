#pragma once

#include <array>
#include <cstddef>

namespace karvenis {

/// Controls that share a name and have an index, which is 0..count-1. All are null at first. An
/// index outside that range throws std::out_of_range.
template <typename Control, std::size_t count>
class ControlArray {
 public:
  Control*& operator[](int index) { return controls_.at(static_cast<std::size_t>(index)); }
  Control* operator[](int index) const { return controls_.at(static_cast<std::size_t>(index)); }

  int size() const { return static_cast<int>(count); }
  auto begin() const { return controls_.begin(); }
  auto end() const { return controls_.end(); }

 private:
  std::array<Control*, count> controls_{};
};

}  // namespace karvenis
