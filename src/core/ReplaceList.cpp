#include "core/ReplaceList.h"

#include <memory>

#include "core/IgnoringFaults.h"
#include "core/Numbers.h"

namespace karvenis {
namespace {

/// The scratch file of one replacement. It is removed at the end unless it took the list's place.
class Scratch {
 public:
  Scratch(Files& files, const ListAndScratch& names) : files_(files), names_(names) {}
  ~Scratch() {
    if (!taken_) ignoringFaults([this] { removeIfThere(); });
  }
  Scratch(const Scratch&) = delete;
  Scratch& operator=(const Scratch&) = delete;

  void begin() {
    switch (names_.start) {
      case ScratchStart::empty:
        return removeIfThere();
      case ScratchStart::copyOfList:
        if (!files_.exists(names_.list)) return removeIfThere();
        return files_.copy(names_.list, names_.scratch);
      case ScratchStart::leftOver:
        return;
    }
  }
  void takePlace() {
    files_.rename(names_.scratch, names_.list);
    taken_ = true;
  }

 private:
  void removeIfThere() {
    if (files_.exists(names_.scratch)) files_.remove(names_.scratch);
  }

  Files& files_;
  ListAndScratch names_;
  bool taken_ = false;
};

}  // namespace

void replaceList(Surroundings& around, const ListAndScratch& names,
                 const std::function<void(ColumnFile& scratch)>& fill) {
  Files& files = around.files;
  around.windows.dropInput();
  files.refuseProtected(names.list);
  Scratch scratch(files, names);
  scratch.begin();
  // The file is opened twice. A File that has created its file also syncs the folder, which the
  // rename below does anyway: so one File creates, and another one writes. Both are open before the
  // rights are given, since those may forbid an opening.
  const std::unique_ptr<File> created = files.open(names.scratch);
  ColumnFile columns(around.state, files, names.scratch);
  if (files.exists(names.list)) created->takeRightsOf(names.list);
  created->close();
  fill(columns);
  columns.close();
  scratch.takePlace();
}

void removeColumn(Surroundings& around, const ListAndScratch& names, std::int32_t number,
                  std::int32_t count) {
  if (count == 1) {
    around.files.remove(names.list);
    return;
  }
  // Named as for the random columns, KARVENIS.RND and its scratch file KARVENIS.YND.
  replaceList(around, names, [&](ColumnFile& YndFileNo) {
    ColumnFile RndFileNo(around.state, around.files, names.list);
    std::int64_t YndNo = 1;  // the next record of the scratch file
    for (std::int64_t read = 1; read <= count; ++read) {
      if (read == number) continue;
      YndFileNo.put(YndNo, RndFileNo.at(read));
      ++YndNo;
    }
    RndFileNo.close();
  });
}

void copyList(Surroundings& around, const char* from, const char* to) {
  around.windows.dropInput();
  around.files.copy(from, to);
}

void backUpList(Surroundings& around) {
  around.files.refuseProtected(combinationList);
  copyList(around, combinationList, listBackup);
}

void backUpAnyList(Surroundings& around) {
  if (around.files.exists(combinationList)) backUpList(around);
}

std::string savedInList(std::int32_t columns) {
  return withBlank(columns) + " kolon 'KARVENIS.LST' dosyasına kayıtlandı.";
}

}  // namespace karvenis
