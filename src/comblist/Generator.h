#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "comblist/GeneratorDraw.h"
#include "core/ColumnFile.h"
#include "core/Surroundings.h"
#include "platform/TitleBar.h"

namespace karvenis {

inline constexpr char generatorTitle[] = "6/49 Rastgele Kolon Üreteci";

/// Writes random columns into the combination list, all in one run: a new list, or columns behind
/// the existing ones.
class Generator {
 public:
  enum class Mode { newList, append };
  enum class Outcome {
    done,     ///< the columns are on disk, and a box said so
    refused,  ///< the count is out of range; the user has to type another one
    kept,     ///< the user does not want the list replaced
  };

  /// `title` belongs to the generator's window and shows the number of the column being written.
  /// Counts the existing list. Throws RunTimeError(read, overflow).
  Generator(Surroundings& around, TitleBar& title);

  /// Whether there is a list that columns can be added to.
  [[nodiscard]] bool canAppend() const { return ExistingCount >= 1 && ExistingCount < recordLimit; }
  /// What the count box shows when "Mevcut Listeye Ekle" is chosen: the columns that still fit.
  [[nodiscard]] std::string countForAppend() const {
    return std::to_string(recordLimit - ExistingCount);
  }
  /// What the count box, which shows `text`, changes to when "Yeni Liste" is chosen.
  [[nodiscard]] std::string countForNewList(const std::string& text) const;

  /// Checks the count that `text` begins with, asks before a list is replaced, and writes the
  /// columns. Before a new list is begun, the old one is in its backup. Throws RunTimeError; the
  /// list is then as it was.
  [[nodiscard]] Outcome start(Mode mode, std::string_view text);

 private:
  bool refuses(Mode mode);
  bool mayReplaceList();
  void GenerateNewList(const GeneratorDraw& draw);
  void AppendToList(const GeneratorDraw& draw);
  void writeNext(ColumnFile& list, const Column& drawn);
  void finish(const std::string& message);

  Surroundings& around_;
  TitleBar& title_;
  std::int32_t ExistingCount;    // records when the window was loaded
  std::int32_t WantedCount = 0;  // columns to write
  std::int16_t RecordNo = 0;     // the record being written
};

}  // namespace karvenis
