#include "platform/RunTimeError.h"

namespace karvenis {

std::string describe(const RunTimeError& error) {
  const std::string quoted = "'" + error.subject() + "'";
  const std::string why = "\rNeden: " + error.reason();
  switch (error.fault()) {
    case Fault::open:
      return quoted + " dosyası açılamadı." + why;
    case Fault::read:
      return quoted + " dosyası okunamadı." + why;
    case Fault::write:
      return quoted + " dosyasına yazılamadı." + why;
    case Fault::copy:
      return quoted + " dosyası kopyalanamadı." + why;
    case Fault::remove:
      return quoted + " dosyası silinemedi." + why;
    case Fault::rename:
      return quoted + " dosyasının adı değiştirilemedi." + why;
    case Fault::damaged:
      return quoted + " dosyasında bozuk bir kolon var." + why;
    case Fault::overflow:
      return quoted + " sayısı taştı." + why;
    case Fault::printer:
      break;
  }
  return "Printer hatası: " + quoted + why;
}

}  // namespace karvenis
