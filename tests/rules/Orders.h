#pragma once

#include <gtest/gtest.h>

#include <initializer_list>

#include "doubles/Doubles.h"

namespace karvenis {

using Lines = std::vector<std::string>;

inline constexpr char changeQuestion[] =
    "KARVENIS.RND dosyasının adını KARVENIS.LST olarak değiştirmek istiyormusunuz?";

/// The lines of `parts`, one behind the other.
inline Lines joined(std::initializer_list<Lines> parts) {
  Lines all;
  for (const Lines& part : parts) all.insert(all.end(), part.begin(), part.end());
  return all;
}

/// A list is filled in its scratch file and then takes the list's place.
inline Lines replaced(const std::string& list, const std::string& scratch, const Lines& filling) {
  return joined({{"open " + scratch, "open " + scratch, "close " + scratch},
                 filling,
                 {"write " + scratch, "sync " + scratch, "close " + scratch,
                  "rename " + scratch + " " + list}});
}

}  // namespace karvenis
