#include "bag/Spoken.h"

#include "core/Numbers.h"

namespace karvenis {

std::string spokenBag(const SharedState& state) {
  if (state.Bag.empty()) return "Torba boş";
  return "Torbada" + withBlank(static_cast<std::int64_t>(state.Bag.balls().size())) + " top";
}

std::string spokenBanko(const SharedState& state) {
  if (state.Banko.empty()) return "Banko yok";
  return "Banko: " + listed(state.Banko.balls());
}

}  // namespace karvenis
