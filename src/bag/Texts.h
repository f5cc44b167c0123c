#pragma once

#include <string>

namespace karvenis {

/// The longer texts of the bag, banko and coupon windows. Character 13 is a line break.

/// The warning of a load if the file is shorter than its counts say.
inline constexpr char bagFileBroken[] = "'KARVENIS.DAT' dosyası bozuk !";
/// The message of a save when it is done.
inline constexpr char bagFileSaved[] = "Seçilen toplar KARVENIS.DAT dosyasına kayıtlandı...";

inline constexpr char bagKeys[] =
    "Torba Menüsü FONKSİYON TUŞLARI : \r\r"
    "F1=  Uygula (İşaretli topları torbaya koy)\r"
    "F2=  Topları 'KARVENIS.DAT' dosyasından yükle\r"
    "F3=  İşaretli topları 'KARVENIS.DAT' dosyasına kayıtla\r"
    "F4=  Hepsini Seç\r"
    "F5=  Hiçbirini Seçme\r\r"
    "F10= Yardım\r"
    "F11= 'Torba Niçin ve Nasıl Kullanılır' Açıklaması\r\r"
    "ESC= Kapat\r";

inline constexpr char bankoKeys[] =
    "Banko Menüsü FONKSİYON TUŞLARI : \r\r"
    "F1=  Uygula (İstenen topu/topları banko top yap)\r"
    "F2=  Banko seçimini 'KARVENIS.DAT' dosyasından yükle\r"
    "F3=  Banko seçimini 'KARVENIS.DAT' dosyasına kayıtla\r\r"
    "F4-F9= Banko top sayısı seçimi\r\r"
    "F10= Yardım\r"
    "F11= 'Banko Nedir ve Niçin Kullanılır' Açıklaması\r\r"
    "ESC= Kapat\r";

inline constexpr char couponKeys[] =
    "FONKSİYON TUŞLARI : \r\r"
    "F10= Yardım\r"
    "ESC= Kapat\r\r\r"
    "Diğer Tuşlar= Yeni Bir Sayfa/Kupon Göster";

/// What both explanations end with.
inline const std::string formulaNote =
    "Formül ve filtre kullanarak kombinasyon listesi hazırlamak isterseniz, firmamızın formül "
    "programını öneririz; bilgi için web sayfamıza bakabilirsiniz...";

inline constexpr char bagExplainedTitle[] = " KARVENIS 2005 Randomizer [ TORBA'NIN İŞLEVİ ]";
inline const std::string bagExplained =
    "'TORBA' kombinasyonlarda yer alacak topların içine konulduğu sanal bir torbadır; gerçekte, "
    "kullanılacak toplar kümesidir...\r\r"
    "Tüm rastgele ve formüllü kolonlar torbada yer alan sayılardan oluşur...\r\r"
    "Tüm toplar torbaya konursa, 13983816 olasılık ortaya çıkar. Banko top kullanmadan, çıkması "
    "beklenen 36 top torbaya konursa, 1947792 olasılık ortaya çıkar...\r\r"
    "Bununla birlikte, torbaya konmayan (elenen) toplardan biri ve birkaçı 'Sayısal Loto' "
    "çekilişinde çıkarsa, tüm olasılıklar oynansa dahi, 6 tutturulamaz...\r\r" +
    formulaNote;

inline constexpr char bankoExplainedTitle[] = " KARVENIS 2005 Randomizer  [ BANKO'NUN İŞLEVİ ]";
inline const std::string bankoExplained =
    "'BANKO TOP' ifadesi tüm kombinasyonlarda mutlaka yer alacak topları belirtir...\r\r"
    "Tüm toplar (bankosuz) torbaya konursa, 13983816 olasılık ortaya çıkar. Banko top "
    "kullanmadan, çıkması beklenen 36 top torbaya konursa, 1947792 olasılık ortaya çıkar...\r\r"
    "Bir banko top seçilirse ve diğer 48 top torbaya konursa, 1712304 olasılık ortaya "
    "çıkar...\r\r"
    "Bununla birlikte, banko top (veya toplar) 'Sayısal Loto' çekilişinde çıkmazsa, doğal "
    "olarak, 6 (veya 5) tutturulamaz...\r\r" +
    formulaNote;

}  // namespace karvenis
