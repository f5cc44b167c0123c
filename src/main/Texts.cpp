#include "main/Texts.h"

namespace karvenis {

std::string aboutText(const std::string& folder) {
  return "Bu program, 6/49 Sayısal Loto için seçtiğiniz toplardan (torbadan) rastgele kolonlar "
         "çeker; çıkmasını mutlaka istediğiniz banko topları her kolona ekler, kolonları gösterir "
         "ve listeler.\r"
         "\r"
         "KARVENIS 2005 Randomizer, kuponunu elle dolduranlara yardım etmek için yazılmış, "
         "bağımsız "
         "bir masaüstü programıdır. Kolonlarınız yalnızca sizin bilgisayarınızda durur.\r"
         "Sürüm: " KARVENIS_VERSION
         "\r"
         "Lisans: MIT, resimler CC0-1.0\r"
         "Kılavuz: /usr/share/doc/karvenis/KULLANIM.html (paketle kurulunca)\r"
         "Dosyaların durduğu klasör: " +
         folder +
         "\r"
         "\r"
         "Tam formüllü kombinasyon listeleri için, bu programın yanında, yapımcının formül "
         "programını kullanmanızı öneririz.";
}

}  // namespace karvenis
