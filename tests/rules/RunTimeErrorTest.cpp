#include <gtest/gtest.h>

#include <cerrno>

#include "core/Checked.h"
#include "platform/RunTimeError.h"
#include "platform/SystemErrorText.h"

namespace karvenis {
namespace {

struct Told {
  Fault fault;
  const char* text;
};

class ClosingBox : public testing::TestWithParam<Told> {};

TEST_P(ClosingBox, TellsWhichFileWhatFailedAndWhy) {
  EXPECT_EQ(describe(RunTimeError(GetParam().fault, "X", "y")), GetParam().text);
}

INSTANTIATE_TEST_SUITE_P(
    Faults, ClosingBox,
    testing::Values(Told{Fault::open, "'X' dosyası açılamadı.\rNeden: y"},
                    Told{Fault::read, "'X' dosyası okunamadı.\rNeden: y"},
                    Told{Fault::write, "'X' dosyasına yazılamadı.\rNeden: y"},
                    Told{Fault::copy, "'X' dosyası kopyalanamadı.\rNeden: y"},
                    Told{Fault::remove, "'X' dosyası silinemedi.\rNeden: y"},
                    Told{Fault::rename, "'X' dosyasının adı değiştirilemedi.\rNeden: y"},
                    Told{Fault::damaged, "'X' dosyasında bozuk bir kolon var.\rNeden: y"},
                    Told{Fault::overflow, "'X' sayısı taştı.\rNeden: y"},
                    Told{Fault::printer, "Printer hatası: 'X'\rNeden: y"}));

TEST(SystemErrorText, IsTurkishForTheErrorsThatAUserCanMeet) {
  const std::pair<int, const char*> rows[] = {
      {EACCES, "Erişim izni yok."},          {EPERM, "Erişim izni yok."},
      {EROFS, "Dosya sistemi salt okunur."}, {ENOSPC, "Diskte yer kalmadı."},
      {EDQUOT, "Diskte yer kalmadı."},       {EFBIG, "Dosya çok büyük."},
      {EIO, "Giriş/çıkış hatası."},          {EISDIR, "Bu adda bir klasör var."},
      {EINVAL, "Olağan bir dosya değil."},   {ENOENT, "Dosya bulunamadı."},
      {EBADF, "Dosya salt okunur."},         {EAGAIN, "Dosya başka bir programda kullanılıyor."},
      {ELOOP, "Bağlantı kendine dönüyor."},
  };
  for (const auto& [error, words] : rows) EXPECT_EQ(systemErrorText(error), words);
  EXPECT_FALSE(systemErrorText(ETXTBSY).empty());
}

TEST(Checked, TellsTheNumberAndTheRoomThatItOutgrew) {
  EXPECT_EQ(checked<std::int16_t>(32767), 32767);
  try {
    std::ignore = checked<std::int16_t>(32768);
    ADD_FAILURE() << "no fault";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(describe(error), "'32768' sayısı taştı.\rNeden: 16 bite sığmıyor");
  }
}

}  // namespace
}  // namespace karvenis
