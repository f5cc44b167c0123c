#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace karvenis {

/// Fixed-width integers as the files hold them, lowest byte first whatever the machine.
template <typename Unsigned>
void putLittleEndian(std::span<std::byte> bytes, Unsigned value) {
  for (std::size_t i = 0; i < sizeof(Unsigned); ++i) {
    bytes[i] = static_cast<std::byte>(static_cast<unsigned>(value >> (8 * i)) & 0xFFU);
  }
}

template <typename Unsigned>
Unsigned getLittleEndian(std::span<const std::byte> bytes) {
  Unsigned value = 0;
  for (std::size_t i = 0; i < sizeof(Unsigned); ++i) {
    value = static_cast<Unsigned>(value | (static_cast<Unsigned>(bytes[i]) << (8 * i)));
  }
  return value;
}

}  // namespace karvenis
