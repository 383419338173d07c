// replay SEEDS COUNT: runs a target without a fuzzer, on each file of the folder SEEDS and then on COUNT
// texts made of them by chance, the same at every start. What a target finds ends the program; the last line
// is the number of the run.
#include <algorithm>
#include <csignal>
#include <cstddef>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <string>
#include <string_view>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const unsigned char* data, std::size_t size);

namespace {

constexpr std::size_t kMaxBytes = 4096;
constexpr std::string_view kTokens[] = {"<row>",    "</row>", "<row/>", "<list>", "</list>",   "<A>",
                                        "</A>",     "&amp;",  "&#0;",   "<!--",   "<![CDATA[", "]]>",
                                        "\xC4\xE3", "\x81",   "\\",     "|"};

volatile std::sig_atomic_t g_run = 0;

void SayRun(int) {
  std::fprintf(stderr, "in run %d\n", static_cast<int>(g_run));
}

void Run(const std::string& text) {
  g_run = g_run + 1;
  LLVMFuzzerTestOneInput(reinterpret_cast<const unsigned char*>(text.data()), text.size());
}

std::vector<std::string> ReadSeeds(const std::filesystem::path& folder) {
  std::vector<std::filesystem::path> files;
  for (const auto& entry : std::filesystem::directory_iterator(folder)) files.push_back(entry.path());
  std::sort(files.begin(), files.end());
  std::vector<std::string> seeds;
  for (const auto& file : files) {
    std::ifstream in(file, std::ios::binary);
    seeds.emplace_back(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
  }
  return seeds;
}

class Changes {
 public:
  explicit Changes(const std::vector<std::string>& seeds) : seeds_(seeds) {}

  std::string Next() {
    std::string text = seeds_[Below(seeds_.size())];
    for (std::size_t change = 1 + Below(6); change > 0; --change) Change(text);
    text.resize(std::min(text.size(), kMaxBytes));
    return text;
  }

 private:
  std::size_t Below(std::size_t bound) { return random_() % bound; }

  void Change(std::string& text) {
    const std::size_t at = Below(text.size() + 1);
    switch (Below(5)) {
      case 0:
        text.insert(at, kTokens[Below(std::size(kTokens))]);
        break;
      case 1:
        text.insert(at, 1, static_cast<char>(Below(256)));
        break;
      case 2:
        text.erase(at, 1 + Below(8));
        break;
      case 3:
        text.insert(at, text.substr(Below(text.size() + 1), 1 + Below(40)));
        break;
      default: {
        const std::string& other = seeds_[Below(seeds_.size())];
        text.replace(at, std::string::npos, other, Below(other.size() + 1), std::string::npos);
      }
    }
  }

  const std::vector<std::string>& seeds_;
  std::mt19937 random_{20260615};
};

}  // namespace

int main(int count, char** arguments) {
  if (count != 3) {
    std::fprintf(stderr, "usage: replay SEEDS COUNT\n");
    return 2;
  }
  std::signal(SIGABRT, SayRun);
  const std::vector<std::string> seeds = ReadSeeds(arguments[1]);
  if (seeds.empty()) {
    std::fprintf(stderr, "no seeds in %s\n", arguments[1]);
    return 2;
  }
  for (const std::string& seed : seeds) Run(seed);
  Changes changes(seeds);
  for (long left = std::atol(arguments[2]); left > 0; --left) Run(changes.Next());
  return 0;
}
