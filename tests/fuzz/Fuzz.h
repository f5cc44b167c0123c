#pragma once

#include <cstdint>
#include <cstdlib>
#include <map>
#include <span>
#include <string>

#include "core/ColumnFile.h"
#include "doubles/QuietWorld.h"
#include "platform/RunTimeError.h"

namespace karvenis {

/// A fuzzing target takes any bytes and must come back.
using FuzzTarget = void (*)(const std::uint8_t* data, std::size_t size);

/// Every target by its name.
inline std::map<std::string, FuzzTarget>& fuzzTargets() {
  static std::map<std::string, FuzzTarget> all;
  return all;
}
/// Makes a target known to the fuzzer and to the test of the kept inputs.
struct Target {
  Target(const char* name, FuzzTarget run) { fuzzTargets().emplace(name, run); }
};

inline void require(bool holds) {
  if (!holds) std::abort();
}

inline std::string textOf(const std::uint8_t* data, std::size_t size) {
  return {reinterpret_cast<const char*>(data), size};
}

inline Bytes bytesOf(const std::uint8_t* data, std::size_t size) {
  const auto bytes = std::as_bytes(std::span(data, size));
  return {bytes.begin(), bytes.end()};
}

/// A list of `count` sound columns.
inline Bytes soundList(std::int16_t count) {
  Bytes bytes(static_cast<std::size_t>(count) * ColumnRecord::size);
  for (std::int16_t i = 0; i < count; ++i) {
    const auto n = static_cast<std::int16_t>(i % 40);
    const ColumnRecord record{i,
                              {static_cast<std::int16_t>(n + 1), static_cast<std::int16_t>(n + 2),
                               static_cast<std::int16_t>(n + 4), static_cast<std::int16_t>(n + 6),
                               static_cast<std::int16_t>(n + 8), static_cast<std::int16_t>(n + 9)}};
    encode(record, std::span(bytes)
                       .subspan(static_cast<std::size_t>(i) * ColumnRecord::size)
                       .first<ColumnRecord::size>());
  }
  return bytes;
}

/// Runs what may end in the one allowed fault.
template <typename Step>
void allowingFaults(Step step) {
  try {
    step();
  } catch (const RunTimeError&) {
    // Told to the user by the closing box.
  }
}

}  // namespace karvenis
