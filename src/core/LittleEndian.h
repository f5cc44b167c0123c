#pragma once

#include <concepts>
#include <cstddef>
#include <cstdint>
#include <span>

namespace karvenis {

/// Writes `value` into the first bytes of `bytes`, as files hold integers: the lowest byte first,
/// whatever the machine. Precondition: `bytes` has at least sizeof(Integer) bytes.
template <std::integral Integer>
void putLittleEndian(std::span<std::byte> bytes, Integer value) {
  for (std::size_t i = 0; i < sizeof(Integer); ++i) {
    bytes[i] = static_cast<std::byte>(value >> (8 * i));
  }
}

/// Returns the integer that the first bytes of `bytes` hold in that form. The same precondition.
template <std::integral Integer>
[[nodiscard]] Integer getLittleEndian(std::span<const std::byte> bytes) {
  std::uint64_t value = 0;
  for (std::size_t i = 0; i < sizeof(Integer); ++i) {
    value |= std::to_integer<std::uint64_t>(bytes[i]) << (8 * i);
  }
  return static_cast<Integer>(value);
}

}  // namespace karvenis
