// Every input that fuzzing kept (corpus/TARGET/) goes through its target once more.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <iterator>
#include <vector>

#include "fuzz/Fuzz.h"

namespace karvenis {
namespace {

namespace fs = std::filesystem;

const fs::path corpus = fs::path(__FILE__).parent_path() / "corpus";

std::vector<std::string> folders() {
  std::vector<std::string> names;
  for (const auto& entry : fs::directory_iterator(corpus)) names.push_back(entry.path().filename());
  return names;
}

class KeptInputs : public testing::TestWithParam<std::string> {};

TEST_P(KeptInputs, PassTheirTarget) {
  ASSERT_TRUE(fuzzTargets().contains(GetParam()));
  for (const auto& entry : fs::directory_iterator(corpus / GetParam())) {
    SCOPED_TRACE(entry.path());
    std::ifstream file(entry.path(), std::ios::binary);
    const std::vector<char> bytes{std::istreambuf_iterator<char>(file), {}};
    fuzzTargets().at(GetParam())(reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size());
  }
}

INSTANTIATE_TEST_SUITE_P(Fuzzing, KeptInputs, testing::ValuesIn(folders()),
                         [](const auto& folder) { return folder.param; });

}  // namespace
}  // namespace karvenis
