#include "windows/KnownProgram.h"

#include <algorithm>

#include "platform/Keys.h"

// Which window is the active one; the main window and the coupon.

namespace karvenis {
namespace {

constexpr char mainTitle[] = " KARVENIS 2005 Randomizer";

std::string numberOf(std::size_t count) { return " " + std::to_string(count); }

std::string twoDigits(int ball) { return (ball < 10 ? "0" : "") + std::to_string(ball); }

}  // namespace

KnownProgram::KnownProgram(World& world, std::mt19937& random)
    : world_(world), boxes_(world.boxes), random_(random) {
  seeds = 1;
}

bool KnownProgram::asks(const std::string& question, const std::string& title) {
  const bool yes = !chance(5);
  boxes_.expectQuestion(question, yes, title);
  return yes;
}

void KnownProgram::press(int key) {
  static const std::map<std::string, void (KnownProgram::*)(int)> windows = {
      {"frmLoto", &KnownProgram::pressMain},       {"frmBalls", &KnownProgram::pressBag},
      {"frmBanko", &KnownProgram::pressBanko},     {"frmList", &KnownProgram::pressCoupon},
      {"frmRndLst", &KnownProgram::pressKept},     {"frmComLst", &KnownProgram::pressList},
      {"frmRnd", &KnownProgram::pressGenerator},   {"frmRndDel", &KnownProgram::pressDeletion},
      {"frmRLPrint", &KnownProgram::pressListing}, {"frmCLPrint", &KnownProgram::pressListing}};
  if (key == keyEscape) return close(active);
  (this->*windows.at(active))(key);
}

// Windows.

void KnownProgram::show(const std::string& window) {
  if (!isOpen(window)) load(window);
  openers[window] = active;
  activate(window);
}

void KnownProgram::load(const std::string& window) {
  if (window == "frmBalls") marked.clear();
  if (window == "frmBanko") bankoTexts = {};
  if (window == "frmList") coupon = {};
  if (window == "frmRndLst")
    kept = {.caption = " RASTGELE KOLON LİSTESİ   [ F10= YARDIM ]", .rows = {}};
  if (window == "frmComLst")
    list = {.caption = " KOMBİNASYON LİSTESİ  [ F10= YARDIM ]", .rows = {}};
  if (window == "frmRLPrint" || window == "frmCLPrint") prints[window] = false;
  if (window == "frmCLPrint") first = "1";
  if (window == "frmRnd") {
    existing = static_cast<std::int64_t>(Lists::count(lists.list));
    wanted = "32767";
    appends = false;
  }
  if (window == "frmRndDel") {
    deletable = Lists::count(lists.kept);
    deleted.clear();
    if (deletable > 0) beep();
  }
}

void KnownProgram::activate(const std::string& window) {
  if (active == window) return;
  active = window;
  if (window == "frmLoto") ++seeds;
  if (window == "frmBalls") markBag();
  if (window == "frmBanko") showBankos();
  if (window == "frmCLPrint") last = std::to_string(Lists::count(lists.list));
  if (window == "frmRnd" && existing >= 1 && existing < 32767) chooseMode(true);
  if (window == "frmRndLst") {
    kept.start = 0;
    redrawKept();
  }
  if (window != "frmComLst") return;
  if (!lists.list) {
    boxes_.expectWarning("Kombinasyon listesi dosyası 'KARVENIS.LST' bulunamadı!");
    return close(window);
  }
  list.start = 0;
  redrawList();
}

void KnownProgram::goTo(const std::string& window) { activate(window); }

void KnownProgram::close(const std::string& window) {
  const std::string opener = openers.at(window);
  openers.erase(window);
  if (active != window) return;
  active.clear();
  activate(isOpen(opener) ? opener : "frmLoto");
}

// The main window.

void KnownProgram::pressMain(int key) {
  switch (key) {
    case keyF1:
      return saveColumn();
    case keyF2:
      if (!Lists::any(lists.kept)) {
        boxes_.expectWarning("Listelenecek (kayıtlı) Rastgele Kolon yok !");
        return;
      }
      show("frmRndLst");
      caption = mainTitle;
      return;
    case keyF3:
      return renameKept();
    case keyF4:
      return deleteKept();
    case keyF5:
      return show("frmBalls");
    case keyF6:
      return loadBagInMain();
    case keyF7:
      return show("frmBanko");
    case keyF8:
      return loadBankoInMain();
    case keyF9:
      return show("frmList");
    case keyF11:
      return show("frmRnd");
    case keyF12:
      return show("frmComLst");
    default:
      return;
  }
}

void KnownProgram::draw() {
  covered = false;
  if (fromList) return drawFromList();
  std::set<std::int16_t> offered(bag.begin(), bag.end());
  offered.insert(banko.begin(), banko.end());
  if (!bag.empty() && offered.size() < 6) {
    boxes_.expectWarning("En az 6 top seçmiş olmanız gerekiyor!", " ! Eksik top seçimi !");
    return;
  }
  ++seeds;
  caption = mainTitle;
  beep(6);
  made_ = Made::column;
}

void KnownProgram::drawFromList() {
  if (!lists.list) {
    boxes_.expectWarning("Kombinasyon Listesi dosyası yok!", " ! KARVENIS.LST bulunamadı !");
    return;
  }
  const std::size_t count = lists.list->size();
  if (count == 0) {
    boxes_.expectWarning("Kombinasyon Listesi dosyası boş!", " ! KARVENIS.LST geçersiz !");
    return;
  }
  ++seeds;
  const std::size_t record = random_() % count;
  world_.chance.script = {(static_cast<float>(record) + 0.5F) / static_cast<float>(count)};
  drawn = (*lists.list)[record].Balls;
  beep();
  for (std::size_t i = 0; i < labels.size(); ++i) labels[i] = std::to_string(drawn[i / 2]);
  caption = " KARVENIS.LST  Kayıt =" + numberOf(record + 1) + " [" + numberOf(count) + " ]";
}

void KnownProgram::liftPicture() {
  beep();
  covered = false;
}

void KnownProgram::chooseSource(bool ofList) { fromList = ofList; }

void KnownProgram::sortNumbers(bool on) {
  sorted = on;
  if (!on) return;
  std::ranges::sort(drawn);
  for (std::size_t i = 0; i < labels.size(); ++i) labels[i] = std::to_string(drawn[i / 2]);
}

void KnownProgram::saveColumn() {
  if (std::ranges::any_of(drawn, [](std::int16_t ball) { return ball < 1; })) return;
  if (!sorted) std::ranges::sort(drawn);
  lists.keep(drawn);
  beep();
  caption = " KARVENIS.RND Kayıt No=" + numberOf(lists.kept->size());
}

void KnownProgram::renameKept() {
  if (!lists.kept) return;
  if (lists.kept->empty()) {
    lists.kept.reset();
  } else {
    beep();
    if (!asks("KARVENIS.RND dosyasının adını KARVENIS.LST olarak değiştirmek istiyormusunuz?"))
      return;
    lists.renameToList();
  }
  caption = mainTitle;
  beep();
  if (!lists.list) return;
  boxes_.expectMessage(numberOf(lists.list->size()) +
                       " kolon 'KARVENIS.LST' dosyasına kayıtlandı.");
}

void KnownProgram::deleteKept() {
  beep();
  if (!lists.kept || !asks("'KARVENIS.RND' dosyasını silmek istiyormusunuz ?")) return;
  lists.kept.reset();
  beep();
  boxes_.expectMessage("KARVENIS.RND dosyası silindi.", "KARVENIS");
  caption = mainTitle;
}

void KnownProgram::loadBagInMain() {
  beep();
  if (!bagFile || !asks("Topları KARVENIS.DAT dosyasından yüklemek istiyormusunuz?")) return;
  const int count = bagFile->front();
  if (count > 0 && static_cast<int>(bagFile->size()) > count) {
    beep();
    bag.assign(bagFile->begin() + 1, bagFile->begin() + 1 + count);
    removeBankos();
  }
  beep();
}

void KnownProgram::loadBankoInMain() {
  beep();
  if (!bagFile || bagFile->size() < 51) return;
  if (!asks("Banko seçimini KARVENIS.DAT dosyasından yüklemek istiyormusunuz ?")) return;
  banko.assign(bagFile->begin() + 51, bagFile->begin() + 51 + (*bagFile)[50]);
  removeBankos();
  beep();
}

// The coupon.

void KnownProgram::pressCoupon(int) {
  coupon.lines.clear();
  coupon.lineOpen = false;
  coupon.runs = true;
}

/// One tick of its timer.
void KnownProgram::typeCoupon() {
  std::set<std::int16_t> offered(bag.begin(), bag.end());
  offered.insert(banko.begin(), banko.end());
  if (coupon.ball != 6) {
    beep();
    if (!coupon.lineOpen) coupon.lines.emplace_back();
    coupon.lineOpen = true;
    coupon.lines.back() += twoDigits(drawn[static_cast<std::size_t>(coupon.ball++)]) + "  ";
  } else if (coupon.column == 8) {
    coupon.column = 0;
    coupon.runs = false;
    coupon.complete = true;
  } else if (!bag.empty() && offered.size() < 6) {
    coupon.column = 0;
    coupon.runs = false;
    boxes_.expectWarning("En az 6 top seçmiş olmanız gerekiyor!", " ! Eksik top seçimi !");
  } else {
    coupon.ball = 0;
    coupon.lineOpen = true;
    coupon.lines.push_back(" Kolon  " + std::to_string(++coupon.column) + " - ");
    made_ = Made::couponColumn;
  }
}

void KnownProgram::takeOver() {
  const Made made = std::exchange(made_, Made::nothing);
  if (made == Made::nothing) return;
  if (made == Made::list) {
    return lists.generated(madeFirst_, madeCount_, columnsOf(world_.files.bytes("KARVENIS.LST")));
  }
  if (bag.empty()) {
    for (std::int16_t ball = 1; ball <= 49; ++ball) bag.push_back(ball);
    removeBankos();
  }
  drawn = world_.state.Drawn;
  const std::set<std::int16_t> balls(drawn.begin(), drawn.end());
  EXPECT_EQ(balls.size(), 6U);
  for (const std::int16_t ball : balls) {
    EXPECT_TRUE(std::ranges::find(bag, ball) != bag.end() ||
                std::ranges::find(banko, ball) != banko.end());
  }
  for (const std::int16_t ball : banko) EXPECT_TRUE(balls.contains(ball)) << ball;
  if (made == Made::couponColumn || sorted) {
    EXPECT_TRUE(std::ranges::is_sorted(drawn));
  } else {
    EXPECT_TRUE(std::equal(banko.begin(), banko.end(), drawn.begin()));
  }
  if (made == Made::couponColumn) return;
  for (std::size_t i = 0; i < labels.size(); ++i) labels[i] = std::to_string(drawn[i / 2]);
}

}  // namespace karvenis
