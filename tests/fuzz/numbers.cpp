// Typed numbers: any text gives a number in the range of its type.
#include "core/Numbers.h"

#include <cmath>

#include "bag/BankoActions.h"
#include "fuzz/Fuzz.h"

namespace karvenis {
namespace {

const Target numbers("numbers", [](const std::uint8_t* data, std::size_t size) {
  const std::string text = textOf(data, size);
  const double number = leadingNumber(text);
  require(!std::isnan(number));
  const std::int32_t wide = typedNumber32(text);
  const std::int16_t narrow = typedNumber16(text);
  if (std::abs(number) < 30000) require(wide == narrow && std::abs(number - wide) <= 0.5);
  require(typedNumber32(" " + text) == wide);
  const std::string banko = bankoText(text);
  require(banko.empty() || bankoText(banko) == banko);
});

}  // namespace
}  // namespace karvenis
