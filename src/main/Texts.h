#pragma once

#include <string>

namespace karvenis {

/// The main window's key list.
inline constexpr char keyListTitle[] = " KARVENIS 2005 Randomizer  [26.9.2005]";
inline constexpr char keyList[] =
    "FONKSİYON TUŞLARI : \r"
    "\r"
    "F1 = Rastgele kolonu kayıtla\r"
    "F2 = Rastgele kolon listesini göster\r"
    "F3 = Rastgele kolon listesini kombinasyon listesi yap\r"
    "F4 = Rastgele kolon listesini sil\r"
    "F5 = Top seçme tablosunu (Torbayı) göster\r"
    "F6 = Torbayı dosyadan yükle\r"
    "F7 = Bankoyu göster\r"
    "F8 = Bankoyu dosyadan yükle\r"
    "F9 = 8 rastgele kolon listele\r"
    "F10 = Fonksiyon tuşları & Bilgi \r"
    "F11 = Rastgele yöntemiyle kombinasyon listesi yap\r"
    "F12 = Kombinasyon listesini göster\r"
    "\r"
    "ESC= Çıkış/Kapat";

inline constexpr char aboutTitle[] = " KARVENIS 2005 Randomizer Hakkında";
/// What "Program hakkında" shows: the purpose, version, licence and guide of the program, and
/// `folder`, which its files are in.
[[nodiscard]] std::string aboutText(const std::string& folder);

}  // namespace karvenis
