#include <canberra.h>

#include <chrono>
#include <cstdarg>
#include <cstdlib>
#include <fstream>
#include <string>

// Stands in for the sound library: writes the time in milliseconds and the words of each call into
// the file KARVENIS_HEARD. The call that KARVENIS_SILENT names fails.

namespace {

int heard(const std::string& call, const std::string& words = {}) {
  const auto now = std::chrono::steady_clock::now().time_since_epoch();
  std::ofstream(std::getenv("KARVENIS_HEARD"), std::ios::app)
      << std::chrono::duration_cast<std::chrono::milliseconds>(now).count() << ' ' << call << words
      << '\n';
  const char* silent = std::getenv("KARVENIS_SILENT");
  return silent != nullptr && call == silent ? CA_ERROR_NOTAVAILABLE : CA_SUCCESS;
}

/// The words of the properties.
std::string spelled(std::va_list properties) {
  std::string all;
  while (const char* word = va_arg(properties, const char*)) all.append(" ").append(word);
  return all;
}

}  // namespace

int ca_context_create(ca_context**) { return heard("create"); }

int ca_context_change_props(ca_context* context, ...) {
  std::va_list properties;
  va_start(properties, context);
  const std::string words = spelled(properties);
  va_end(properties);
  return heard("name", words);
}

int ca_context_open(ca_context*) { return heard("open"); }

int ca_context_play(ca_context*, std::uint32_t number, ...) {
  std::va_list properties;
  va_start(properties, number);
  const std::string words = spelled(properties);
  va_end(properties);
  return heard("play", words);
}
