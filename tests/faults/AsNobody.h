#pragma once

#include <gtest/gtest.h>
#include <unistd.h>

namespace karvenis {

/// As long as this lives, the process is a user who owns nothing here, if it may do everything
/// else.
class AsNobody {
 public:
  AsNobody() { become(65534); }
  ~AsNobody() { become(0); }
  AsNobody(const AsNobody&) = delete;
  AsNobody& operator=(const AsNobody&) = delete;

 private:
  void become(uid_t user) const {
    if (!all_) return;
    EXPECT_EQ(::seteuid(user), 0);
  }
  bool all_ = ::geteuid() == 0;
};

}  // namespace karvenis
