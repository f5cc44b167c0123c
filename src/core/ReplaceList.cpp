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
    if (taken_) return;
    ignoringFaults([this] {
      if (files_.exists(names_.scratch)) files_.remove(names_.scratch);
    });
  }
  Scratch(const Scratch&) = delete;
  Scratch& operator=(const Scratch&) = delete;

  void begin() {
    const bool copies = names_.start == ScratchStart::copyOfList && files_.exists(names_.list);
    if (copies) {
      files_.copy(names_.list, names_.scratch);
    } else if (names_.start != ScratchStart::leftOver && files_.exists(names_.scratch)) {
      files_.remove(names_.scratch);
    }
  }
  void takePlace() {
    files_.rename(names_.scratch, names_.list);
    taken_ = true;
  }

 private:
  Files& files_;
  ListAndScratch names_;
  bool taken_ = false;
};

}  // namespace

void replaceList(SharedState& state, Files& files, const ListAndScratch& names,
                 const std::function<void(ColumnFile& scratch)>& fill) {
  files.refuseProtected(names.list);
  Scratch scratch(files, names);
  scratch.begin();
  // `created` makes the file, and `columns` writes it. The one that makes a file also waits for its
  // name to be on disk when it is synced; here the rename does that.
  const std::unique_ptr<File> created = files.open(names.scratch);
  ColumnFile columns(state, files, names.scratch);
  if (files.exists(names.list)) created->takeRightsOf(names.list);
  created->close();
  fill(columns);
  columns.close();
  scratch.takePlace();
}

void removeColumn(SharedState& state, Files& files, const ListAndScratch& names,
                  std::int32_t number, std::int32_t count) {
  if (count == 1) {
    files.remove(names.list);
    return;
  }
  replaceList(state, files, names, [&](ColumnFile& scratch) {
    ColumnFile list(state, files, names.list);
    std::int64_t YndNo = 1;  // the next record of the scratch file
    for (std::int64_t read = 1; read <= count; ++read) {
      if (read == number) continue;
      scratch.put(YndNo, list.at(read));
      ++YndNo;
    }
    list.close();
  });
}

void backUpList(Files& files) {
  files.refuseProtected(combinationList);
  files.copy(combinationList, listBackup);
}

void backUpAnyList(Files& files) {
  if (files.exists(combinationList)) backUpList(files);
}

std::string savedInList(std::int32_t columns) {
  return withBlank(columns) + " kolon 'KARVENIS.LST' dosyasına kayıtlandı.";
}

}  // namespace karvenis
