#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace karvenis {

/// Hears of every text that a double shows, in every journal; empty where nobody listens.
inline std::function<void(std::string_view text)>& shownTexts() {
  static std::function<void(std::string_view)> hears;
  return hears;
}

/// What happens outside the rules, in its order, one line each: "beep", "pointer hourglass",
/// "title ...", "message ...", "question ... Yes", "input ... 12", "show frmRnd", "seed 1000000",
/// "number" (one line for numbers in a row), "open KARVENIS.RND", and the same with write, sync,
/// close, remove, copy and rename, the last two with both names. A printer's lines are "printer
/// font 11", "printer x 1000" and so on.
class Journal {
 public:
  std::vector<std::string> lines;
  /// Hears of each line just before it happens.
  std::function<void(const std::string& line)> listener;

  void note(std::string_view kind, std::string_view what = {}) {
    const bool goesOn = kind == "number" && !lines.empty() && lines.back() == kind;
    if (!goesOn) {
      lines.push_back(std::string(kind) + (what.empty() ? "" : " ") + std::string(what));
    }
    if (listener) listener(lines.back());
    if (shownTexts()) shownTexts()(what);
  }
  /// What the lines of one kind tell.
  std::vector<std::string> of(std::string_view kind) const {
    std::vector<std::string> told;
    for (const std::string& line : lines) {
      if (line == kind) told.emplace_back();
      if (line.starts_with(std::string(kind) + " ")) told.push_back(line.substr(kind.size() + 1));
    }
    return told;
  }
};

/// A double that writes into a journal, if it has one.
class Journaling {
 public:
  Journal* journal = nullptr;

 protected:
  void note(std::string_view kind, std::string_view what = {}) const {
    if (journal != nullptr) journal->note(kind, what);
  }
};

}  // namespace karvenis
