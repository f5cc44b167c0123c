#pragma once

#include "core/ColumnFile.h"
#include "doubles/Doubles.h"
#include "windows/WindowTest.h"

namespace karvenis {

/// What differs between the two list windows in what they both do.
struct ListWindow {
  const char* form;
  const char* file;
  const char* title;  ///< how their pages' titles begin
  const char* deleteQuestion;
};

inline constexpr ListWindow keptList{"frmRndLst", randomColumns, " Rastgele Kolon Listesi",
                                     "'KARVENIS.RND' dosyasını silmek istiyormusunuz ?"};
inline constexpr ListWindow combinations{"frmComLst", combinationList, " Kombinasyon Listesi",
                                         "'KARVENIS.LST' dosyasını silmek istiyormusunuz ?"};

/// A test with a list window over a file of columns.
class ListWindowTest : public WindowTest {
 protected:
  explicit ListWindowTest(const ListWindow& window) : window_(window) {}

  Form* list = nullptr;

  /// The list window over `count` columns.
  void openOver(std::int32_t count) {
    hold(count);
    list = open(window_.form);
    ASSERT_NE(list, nullptr);
  }
  /// The file holds `count` columns from now on.
  void hold(std::int32_t count) { world.files.folder[window_.file] = countedColumns(count); }
  std::vector<std::string> shown() const { return linesOf(list); }
  bool showsFrom(int first, std::size_t rows) const {
    return shown().size() == rows &&
           shown().front().starts_with("Kolon - " + std::to_string(first) + " : ");
  }
  std::string pageTitled(int page) const {
    return window_.title + std::string(" - Sayfa ") + std::to_string(page) + "  [ F10= Yardım ]";
  }

 private:
  const ListWindow& window_;
};

}  // namespace karvenis
