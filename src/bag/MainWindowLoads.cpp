#include "bag/MainWindowLoads.h"

#include "bag/BagFile.h"
#include "bag/Spoken.h"

namespace karvenis {

void loadBagInMainWindow(Surroundings& around) {
  around.boxes.beep();
  if (!around.files.exists(bagFileName)) return;
  if (around.boxes.ask("Topları KARVENIS.DAT dosyasından yüklemek istiyormusunuz?")) {
    LoadBagFromFile(around);
  }
}

void loadBankoInMainWindow(Surroundings& around) {
  around.boxes.beep();
  if (!holdsBankos(bagFileLength(around.files), 0)) return;
  if (around.boxes.ask("Banko seçimini KARVENIS.DAT dosyasından yüklemek istiyormusunuz ?")) {
    LoadBankoFromFile(around);
  }
}

void LoadBagFromFile(Surroundings& around) {
  if (around.files.exists(bagFileName)) {  // else opening would make one
    BagFile file(around.files);
    const std::int16_t count = file.bagCount();
    if (count > 0 && file.length() > bagWordSize * count) {
      around.boxes.beep();
      around.state.Bag = file.bag(count);
      around.state.Bag.remove(around.state.Banko);
      around.windows.announce(spokenBag(around.state));
    }
    file.close();
  }
  around.boxes.beep();
}

void LoadBankoFromFile(Surroundings& around) {
  if (around.files.exists(bagFileName)) {  // else opening would make one
    BagFile file(around.files);
    const std::int16_t count = file.bankoCount();
    if (holdsBankos(file.length(), count)) {
      around.state.Banko = file.bankos(count);
      around.windows.announce(spokenBanko(around.state));
    }
    file.close();
    around.state.Bag.remove(around.state.Banko);
  }
  around.boxes.beep();
}

}  // namespace karvenis
