#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "comblist/GeneratorDraw.h"
#include "core/CaptionLine.h"
#include "core/ColumnFile.h"
#include "core/Surroundings.h"
#include "platform/TitleBar.h"

namespace karvenis {

inline constexpr char generatorTitle[] = "6/49 Rastgele Kolon Üreteci";

/// Writes a whole list of random columns into the combination list in one run: a new list, or
/// columns behind the existing ones.
class Generator {
 public:
  enum class Mode { newList, append };
  enum class Outcome {
    done,     ///< the columns are on disk and the user has been told
    refused,  ///< the count cannot be; the user is to type another one
    kept,     ///< the user keeps the list he has
  };

  /// `title` is the generator's window, which shows the number of the column being written. Counts
  /// the existing list.
  Generator(Surroundings& around, TitleBar& title);

  /// Whether there is a list that columns can be added to.
  bool canAppend() const { return ExistingCount >= 1 && ExistingCount < recordLimit; }
  /// What the count box shows when "Mevcut Listeye Ekle" is chosen: the columns that still fit.
  std::string countForAppend() const { return std::to_string(recordLimit - ExistingCount); }
  /// What the count box, which shows `text`, changes to when "Yeni Liste" is chosen.
  std::string countForNewList(const std::string& text) const;

  /// Checks the count that `text` begins with, asks before a list is replaced, and writes the
  /// columns. Throws RunTimeError; before a new list is opened, the old one is in its backup.
  Outcome start(Mode mode, std::string_view text);

 private:
  bool refuses(Mode mode);
  bool mayReplaceList();
  void GenerateNewList(GeneratorDraw& draw);
  void AppendToList(GeneratorDraw& draw);
  ColumnFile open();
  void write(ColumnFile& list, std::int64_t number, const Column& drawn);
  void finish(ColumnFile& list, std::int32_t written, const char* words);

  Surroundings& around_;
  TitleBar& title_;
  std::int32_t ExistingCount;    // records when the window was loaded
  std::int32_t WantedCount = 0;  // columns to write
  std::int16_t RecordNo = 0;     // the record being written
  CaptionLine caption_;
};

}  // namespace karvenis
