#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <span>

namespace karvenis {

/// Fixed-width integers as the files hold them, lowest byte first whatever the machine.
/// `bytes` are as many as the integer has, at least.
template <std::integral Integer>
void putLittleEndian(std::span<std::byte> bytes, Integer value) {
  for (std::size_t i = 0; i < sizeof(Integer); ++i) {
    bytes[i] = static_cast<std::byte>(value >> (8 * i));
  }
}

template <std::integral Integer>
[[nodiscard]] Integer getLittleEndian(std::span<const std::byte> bytes) {
  std::uint64_t value = 0;
  for (std::size_t i = 0; i < sizeof(Integer); ++i) {
    value |= std::to_integer<std::uint64_t>(bytes[i]) << (8 * i);
  }
  return static_cast<Integer>(value);
}

}  // namespace karvenis
