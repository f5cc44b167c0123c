#include "platform/SystemErrorText.h"

#include <cerrno>
#include <system_error>

namespace karvenis {

std::string systemErrorText(int error) {
  switch (error) {
    case EACCES:
    case EPERM:
      return "Erişim izni yok.";
    case EROFS:
      return "Dosya sistemi salt okunur.";
    case ENOSPC:
    case EDQUOT:
      return "Diskte yer kalmadı.";
    case EFBIG:
      return "Dosya çok büyük.";
    case EIO:
      return "Giriş/çıkış hatası.";
    case EISDIR:
      return "Bu adda bir klasör var.";
    case EINVAL:  // not a regular file
      return "Olağan bir dosya değil.";
    case ENOENT:
      return "Dosya bulunamadı.";
    case EBADF:  // written to, but opened for reading only
      return "Dosya salt okunur.";
    case EAGAIN:  // locked by another program's copy
      return "Dosya başka bir programda kullanılıyor.";
    case ELOOP:
      return "Bağlantı kendine dönüyor.";
    default:
      return std::system_category().message(error);
  }
}

}  // namespace karvenis
