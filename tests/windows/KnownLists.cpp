#include <numeric>

#include "platform/Keys.h"
#include "windows/KnownProgram.h"

// The list windows of the known program, the generator, the deletion and the listings.

namespace karvenis {
namespace {

constexpr char plainTitle[] = "KARVENIS 2005 Randomizer";
constexpr char faultTitle[] = "! HATA !";
constexpr char attentionTitle[] = "! DİKKAT !";
constexpr char keysTitle[] = " FONKSİYON TUŞLARI";

std::string numberOf(std::int64_t count) { return " " + std::to_string(count); }

std::string zeroPadded(std::string number, std::size_t digits) {
  while (number.size() < digits) number.insert(0, "0");
  return number;
}

std::int64_t valueOf(const std::string& text) { return std::strtoll(text.c_str(), nullptr, 10); }

int sumOf(const Column& column) { return std::accumulate(column.begin(), column.end(), 0); }

std::string rowOf(std::int64_t number, const Column& column) {
  std::string row = "Kolon -" + numberOf(number) + " : ";
  for (const std::int16_t ball : column) row += numberOf(ball) + "  ";
  const int sum = sumOf(column);
  return row + "[" + (sum <= 99 ? " 0" : " ") + std::to_string(sum) + " ]";
}

std::string lineOf(std::size_t number, std::size_t digits, const Column& column) {
  std::string line = "Kolon " + zeroPadded(std::to_string(number), digits) + " - ";
  for (std::size_t i = 0; i < column.size(); ++i) {
    line += (i == 0 ? "" : ", ") + zeroPadded(std::to_string(column[i]), 2);
  }
  const std::string sum = std::to_string(sumOf(column));
  return line + "  [" + (sum.size() < 3 ? "0" : "") + sum + "]\r\n";
}

std::string joined(const std::vector<std::string>& parts, const char* between) {
  std::string all;
  for (const std::string& part : parts) all += (all.empty() ? "" : between) + part;
  return all;
}

}  // namespace

// Pages.

void KnownProgram::turn(Page& page, int key) const {
  if (key == keyDown && page.start < page.count) ++page.start;
  if (key == keyUp && page.start > 0) --page.start;
  if (key == keyPageUp) page.start = std::max<std::int64_t>(page.start - 25, 0);
  if (key == keyHome) page.start = 0;
  if (key == keyEnd && page.count > 24) page.start = page.count - 25;
  const bool further = key == keyPageDown || key == keySpace || key == keyEnter;
  if (further && page.count - page.start > 24) page.start += 25;
}

void KnownProgram::drawRows(Page& page, const std::optional<Columns>& columns,
                            const std::string& name) const {
  page.rows.clear();
  const std::int64_t end = std::min(page.start + 25, page.count);
  for (std::int64_t number = page.start + 1; number <= end; ++number) {
    page.rows.push_back(rowOf(number, (*columns)[static_cast<std::size_t>(number - 1)].Balls));
  }
  page.caption = " " + name + " - Sayfa" + numberOf((end + 24) / 25) + "  [ F10= Yardım ]";
}

/// Makes the file where it is missing.
void KnownProgram::redrawKept() {
  if (!lists.kept) lists.kept.emplace();
  kept.count = static_cast<std::int64_t>(lists.kept->size());
  if (kept.start >= kept.count) kept.start = std::max<std::int64_t>(kept.count - 25, 0);
  drawRows(kept, lists.kept, "Rastgele Kolon Listesi");
}

void KnownProgram::redrawList() {
  if (!lists.list) return;
  list.count = static_cast<std::int64_t>(lists.list->size());
  if (list.start >= list.count) list.start = std::max<std::int64_t>(list.count - 25, 0);
  if (list.count < 1) {
    boxes_.expectWarning("Kombinasyon listesi dosyası 'KARVENIS.LST' boş!");
    return;
  }
  drawRows(list, lists.list, "Kombinasyon Listesi");
}

void KnownProgram::clickPage() {
  (active == "frmRndLst" ? kept : list).start += 25;
  active == "frmRndLst" ? redrawKept() : redrawList();
}

// The kept columns.

void KnownProgram::pressKept(int key) {
  if (key == keyF1) {
    beep();
    if (Lists::any(lists.kept) &&
        asks("Rastgele Kolon Listesi'ni Kombinasyon Listesi'ne eklemek istiyormusunuz ?")) {
      kept.start = static_cast<std::int64_t>(Lists::count(lists.list));
      lists.append();
      beep();
      boxes_.expectMessage("Rastgele Kolon Listesi Kombinasyon Listesi'ne eklendi.");
    }
  } else if (key == keyF2) {
    beep();
    if (asks("Rastgele Kolon Listesi'ni (KARVENIS.RND) Kombinasyon Listesi (KARVENIS.LST) olarak "
             "kayıtlamak istiyormusunuz?")) {
      lists.saveAsList();
      beep();
      boxes_.expectMessage(numberOf(static_cast<std::int64_t>(lists.list->size())) +
                           " kolon 'KARVENIS.LST' dosyasına kayıtlandı.");
    }
  } else if (key == keyF3) {
    beep();
    if (Lists::any(lists.kept)) show("frmRndDel");
  } else if (key == keyF4) {
    beep();
    if (lists.kept && asks("'KARVENIS.RND' dosyasını silmek istiyormusunuz ?")) lists.kept.reset();
  } else if (key == keyF9) {
    beep();
    if (Lists::any(lists.kept)) show("frmRLPrint");
  } else {
    turn(kept, key);
  }
  redrawKept();
}

void KnownProgram::pressDeletion(int key) {
  if (key != keyEnter) return;
  const std::int64_t number = valueOf(deleted);
  deleted = std::to_string(number);
  if (number < 1 || number > static_cast<std::int64_t>(deletable)) {
    boxes_.expectWarning("Silinecek kolon numarası geçersiz! En çok" +
                             numberOf(static_cast<std::int64_t>(deletable)) + " olabilir.",
                         "! DİKKAT ! Geçersiz Kolon Numarası");
    return;
  }
  lists.removeKept(static_cast<std::size_t>(number));
  close("frmRndDel");
}

// The combination list.

void KnownProgram::pressList(int key) {
  if (key == keyF1) {
    beep();
    if (Lists::any(lists.list)) show("frmCLPrint");
  } else if (key == keyF2) {
    beep();
    if (Lists::any(lists.list)) {
      if (lists.kept && !asks("'KARVENIS.LST' dosyasını 'KARVENIS.RND' dosyası olarak kopyelemek "
                              "istiyormusunuz?\r\r(Mevcut 'KARVENIS.RND' dosyası silinecek!)")) {
        return;
      }
      lists.kept = lists.list;
      boxes_.expectMessage("Kombinasyon Listesi Yasak Kombinasyonlar Listesi'ne eklendi.");
    }
  } else if (key == keyF3) {
    deleteListed();
  } else if (key == keyF4) {
    beep();
    if (lists.list && asks("'KARVENIS.LST' dosyasını silmek istiyormusunuz ?")) {
      lists.list.reset();
      beep();
      boxes_.expectMessage("'KARVENIS.LST' silindi...");
    }
  } else if (key >= keyF5 && key <= keyF8) {
    filter(key);
  } else if (key == keyF11 || key == keyF12) {
    beep();
  } else {
    turn(list, key);
  }
  redrawList();
}

void KnownProgram::deleteListed() {
  beep();
  const std::size_t count = Lists::count(lists.list);
  if (count < 1) return;
  const std::size_t number = random_() % (count + 3);
  boxes_.expectInput("Silmek istediğiniz kolon numarasını girin.", "Kolon SİLME", "0",
                     number == 0 ? "" : std::to_string(number));
  list.start = static_cast<std::int64_t>(number);
  if (number < 1 || number > count) return;
  lists.removeListed(number);
  --list.start;
}

void KnownProgram::filter(int key) {
  beep();
  if (Lists::count(lists.list) < 1) return;
  if (key == keyF7) return filterByPair();
  if (key == keyF8) return filterByPairs();
  std::set<std::int16_t> numbers;
  std::vector<std::string> typed, shown;
  for (std::size_t i = key == keyF5 ? 1 + random_() % 3 : 15; i > 0; --i) {
    typed.push_back(std::to_string(*numbers.insert(anyBall()).first));
  }
  for (const std::int16_t ball : numbers) shown.push_back(std::to_string(ball));
  const bool several = numbers.size() > 1;
  const std::vector<std::int16_t> named(numbers.begin(), numbers.end());
  if (key == keyF5) {
    return thinOut({"İstemediğiniz sayıları (aralarına virgül koyarak) girin.", "örnek: 5,12,30",
                    joined(typed, ", "), joined(shown, ","),
                    several ? "' numaralı topların yer aldığı kolonları silmek istiyormusunuz?"
                            : "' numaralı topun yer aldığı kolonları silmek istiyormusunuz?"},
                   [&](const Column& column) { return lacksAll(column, named); });
  }
  thinOut({"İstediğiniz sayıları (aralarına virgül koyarak) girin.\r"
           "(Herhangi biri olan kolonlar seçilecek.)",
           "örnek: 7,20", joined(typed, ","), joined(shown, ","),
           several ? "' numaralı topların hiç birinin yer almadığı kolonları silmek istiyormusunuz?"
                   : "' numaralı topun yer almadığı kolonları silmek istiyormusunuz?"},
          [&](const Column& column) { return hasWanted(column, named); });
}

void KnownProgram::filterByPair() {
  const auto [a, b] = anyPair();
  thinOut(
      {"İstemediğiniz ikiliyi (sayıların arasına tire/eksi işareti koyarak) girin.", "örnek: 5-12",
       std::to_string(b) + " - " + std::to_string(a), std::to_string(a) + "-" + std::to_string(b),
       "' numaralı topların (ikisinin de) yer aldığı kolonları silmek istiyormusunuz?"},
      [one = a, other = b](const Column& column) { return !hasBoth(column, one, other); });
}

void KnownProgram::filterByPairs() {
  std::set<std::pair<std::int16_t, std::int16_t>> pairs;
  std::vector<std::string> typed, shown;
  for (int i = 0; i < 60; ++i) {
    const auto [a, b] = *pairs.insert(anyPair()).first;
    typed.push_back(std::to_string(b) + "-" + std::to_string(a));
  }
  for (const auto& [a, b] : pairs) shown.push_back(std::to_string(a) + "-" + std::to_string(b));
  thinOut({"En az birinin her bir kombinasyon içinde yer almasını istediğiniz ikililerin "
           "sayılarının arasına tire/eksi koyarak ve ikililerin aralarına virgül koyarak girin.",
           "örnek: 3-7,12-40", joined(typed, ","), joined(shown, ", "),
           "'  ikililerinin hiç bulunmadığı kolonları silmek istiyormusunuz?"},
          [&](const Column& column) {
            return hasAnyPair(column, {pairs.begin(), pairs.end()});
          });
}

/// What the input box and the question say, and what is typed: sometimes nothing that is valid.
void KnownProgram::thinOut(const FilterWords& words,
                           const std::function<bool(const Column&)>& keeps) {
  static const std::string invalid[] = {"", "abc", "0,5", "50", "-"};
  const bool valid = !chance(6);
  boxes_.expectInput(words.prompt, "Kolon SİLME", "", valid ? words.typed : invalid[random_() % 5],
                     words.example);
  if (!valid || !asks("'" + words.shown + words.question)) return;
  lists.thinOut(keeps);
  list.caption = " KOMBİNASYON LİSTESİ  [ F10= YARDIM ]";
  list.start = 1;
}

std::int16_t KnownProgram::anyBall() { return static_cast<std::int16_t>(1 + random_() % 49); }

/// Two different balls, the smaller one first.
std::pair<std::int16_t, std::int16_t> KnownProgram::anyPair() {
  const std::int16_t a = anyBall();
  const auto b = static_cast<std::int16_t>(a % 49 + 1);
  return std::minmax({a, b});
}

// The generator.

void KnownProgram::chooseMode(bool append) {
  appends = append;
  if (append) {
    wanted = std::to_string(32767 - existing);
  } else if (existing > 0) {
    wanted = std::to_string(existing);
  } else if (valueOf(wanted) < 8) {
    wanted = "32767";
  }
}

void KnownProgram::pressGenerator(int key) {
  if (key == keyF1) generate();
  if (key != keyF10) return;
  beep();
  boxes_.expectMessage("F1= Oluştur\r\rESC= İptal/Kapat", keysTitle);
}

void KnownProgram::generate() {
  const std::int64_t count = valueOf(wanted);
  if (!appends) {
    if (count < 1 || count > 32767) {
      boxes_.expectWarning("En az 1 ve en çok 32767 kolon kayıtlayabilirsiniz!", attentionTitle);
      return;
    }
    if (existing > 0 &&
        !asks("Mevcut kombinasyon listesini yenisi ile değiştirmek istiyormusunuz?")) {
      return;
    }
    lists.backUp();
  } else if (existing + count > 32767) {
    boxes_.expectWarning("En çok" + numberOf(32767 - existing) + " kolon ekleyebilirsiniz!",
                         attentionTitle);
    return;
  } else if (count < 1) {
    return beep();
  }
  ++seeds;
  made_ = Made::list;
  madeFirst_ = appends ? Lists::count(lists.list) + 1 : 1;
  madeCount_ = static_cast<std::size_t>(count);
  beep();
  boxes_.expectMessage(numberOf(count) + " kolon 'KARVENIS.LST' dosyasına " +
                       (appends ? "eklendi." : "kayıtlandı."));
  close("frmRnd");
}

// The listings.

void KnownProgram::chooseOutput(bool printer) { prints[active] = printer; }

void KnownProgram::pressListing(int key) {
  if (key == keyF1) active == "frmRLPrint" ? listKept() : listRange();
  if (key != keyF10) return;
  beep();
  boxes_.expectMessage("F1= Yaz/Bas\r\rESC= Kapat", keysTitle);
}

void KnownProgram::listKept() {
  beep();
  if (!asks(prints[active]
                ? "Rastgele Kolon Listesi'ni printere bastırmak istiyormusunuz ?"
                : "Rastgele Kolon Listesi'ni KARVENIS.TXT dosyasına yazdırmak istiyormusunuz ?")) {
    return;
  }
  if (!Lists::any(lists.kept)) {
    boxes_.expectWarning("KARVENIS.RND dosyasında kayıt yok !", faultTitle);
    return;
  }
  write("Rastgele Kolon Listesi [ " + world_.clock.today + " ] ", *lists.kept, 1,
        lists.kept->size());
}

void KnownProgram::listRange() {
  const std::int64_t from = valueOf(first), to = valueOf(last);
  first = std::to_string(from);
  last = std::to_string(to);
  beep();
  if (!asks(prints[active]
                ? "Kombinasyon Listesi'ni printere bastırmak istiyormusunuz ?"
                : "Kombinasyon Listesi'ni KARVENIS.TXT dosyasına yazdırmak istiyormusunuz ?",
            plainTitle)) {
    return;
  }
  const auto count = static_cast<std::int64_t>(Lists::count(lists.list));
  if (from < 1 || from > count) {
    boxes_.expectWarning("Başlangıç numarası GEÇERSİZ !", faultTitle);
  } else if (to < from || to > count) {
    boxes_.expectWarning("Bitiş Numarası GEÇERSİZ !", faultTitle);
  } else {
    write("SAYISAL LOTO Kombinasyon Listesi [ " + world_.clock.today + " ]", *lists.list,
          static_cast<std::size_t>(from), static_cast<std::size_t>(to));
  }
}

void KnownProgram::write(const std::string& heading, const Columns& columns, std::size_t from,
                         std::size_t to) {
  if (prints[active]) {
    ++documents;
    return;
  }
  text = "< KARVENIS 2005 Randomizer >\r\n" + heading + "\r\n\r\n";
  const std::size_t digits = std::to_string(to).size();
  for (std::size_t number = from; number <= to; ++number) {
    *text += lineOf(number, digits, columns[number - 1].Balls);
  }
  *text += "\r\n< Toplam " + std::to_string(to - from + 1) + " kolon. >\r\n";
  beep();
  boxes_.expectMessage(numberOf(static_cast<std::int64_t>(text->size())) +
                           " byte \"KARVENIS.TXT\" dosyasına yazıldı.",
                       plainTitle);
}

}  // namespace karvenis
