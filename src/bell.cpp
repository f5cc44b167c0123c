// Plays the desktop's sound "bell" once for each byte of its standard input, which is a socket from
// karvenis, and ends with it. If it cannot play, it ends at once, and karvenis beeps by itself.

#include <canberra.h>
#include <dlfcn.h>
#include <sys/prctl.h>
#include <unistd.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <thread>

namespace {

/// How many waiting bells are played at most; a bell beyond them would come too late.
constexpr ssize_t mostAtOnce = 8;
/// From one bell to the next, so that two of them are heard as two.
constexpr std::chrono::milliseconds apart(80);

/// The sound library, loaded if it is installed: karvenis works without it.
class Sounds {
 public:
  /// Whether bells can be played.
  bool open() {
    return library_ != nullptr && create_(&context_) == CA_SUCCESS &&
           name_(context_, CA_PROP_APPLICATION_NAME, "KARVENIS 2005 Randomizer",
                 CA_PROP_APPLICATION_ICON_NAME, "karvenis", nullptr) == CA_SUCCESS &&
           open_(context_) == CA_SUCCESS;
  }
  /// Starts one bell. Returns false if it cannot be played.
  bool play() {
    return play_(context_, 0, CA_PROP_EVENT_ID, "bell", CA_PROP_CANBERRA_CACHE_CONTROL, "volatile",
                 nullptr) == CA_SUCCESS;
  }

 private:
  template <typename Function>
  Function* find(const char* name) const {
    return library_ == nullptr ? nullptr : reinterpret_cast<Function*>(::dlsym(library_, name));
  }

  void* library_ = ::dlopen("libcanberra.so.0", RTLD_NOW);
  decltype(ca_context_create)* create_ = find<decltype(ca_context_create)>("ca_context_create");
  decltype(ca_context_change_props)* name_ =
      find<decltype(ca_context_change_props)>("ca_context_change_props");
  decltype(ca_context_open)* open_ = find<decltype(ca_context_open)>("ca_context_open");
  decltype(ca_context_play)* play_ = find<decltype(ca_context_play)>("ca_context_play");
  ca_context* context_ = nullptr;
};

}  // namespace

int main() {
  // Ends with karvenis too while a sound server that hangs keeps it from reading.
  ::prctl(PR_SET_PDEATHSIG, SIGKILL);
  Sounds sounds;
  bool plays = sounds.open();
  char asked[4096];
  while (plays) {
    const ssize_t count = ::read(STDIN_FILENO, asked, sizeof asked);
    if (count <= 0) break;
    for (ssize_t bell = 0; plays && bell < std::min(count, mostAtOnce); ++bell) {
      plays = sounds.play();
      std::this_thread::sleep_for(apart);
    }
  }
  ::_exit(plays ? 0 : 1);  // without waiting for a server that no longer answers
}
