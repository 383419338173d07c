// Times every peer on the same answers, each in a process of its own, and prints one table.
//
// The parent writes the answers to files and starts itself once for each peer, task, size and repeat, peers
// in turn, so that what disturbs the machine disturbs all of them. A child loads the text, does its task and
// prints one line. Times are processor time, the minimum of the repeats, since a machine only ever disturbs
// upwards; peak memory is what the process grew by, the text included.
#include <fcntl.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <iterator>
#include <map>
#include <sstream>
#include <stdexcept>

#include "bench/peers.h"

namespace bench {

std::vector<Peer> AllPeers() {
  return {CorvanePeer(),  CorvaneReferencePeer(), ExpatPeer(),    PugiXmlPeer(),
          RapidXmlPeer(), LibXml2Peer(),          TinyXml2Peer(), QtPeer()};
}

namespace {

struct Measure {
  double seconds = 0;  // for one pass
  double peak = 0;     // bytes
  std::uint64_t sum = 0;
};

double Seconds() {
  timespec now{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

// A line of /proc/self/status, in bytes.
double Status(const std::string& name) {
  std::ifstream status("/proc/self/status");
  for (std::string line; std::getline(status, line);)
    if (line.starts_with(name + ":")) return std::atof(line.c_str() + name.size() + 1) * 1024;
  return 0;
}

std::string Load(const std::string& path) {
  std::string text(std::filesystem::file_size(path), '\0');
  std::ifstream(path, std::ios::binary).read(text.data(), static_cast<std::streamsize>(text.size()));
  return text;
}

Measure TimeRead(const Peer& peer, const std::string& path, std::size_t passes) {
  Measure measure;
  const double before = Status("VmRSS");
  const std::string text = Load(path);
  for (std::size_t pass = 0; pass < passes; ++pass) {
    const double start = Seconds();
    const std::unique_ptr<Model> model = peer.read(text);
    measure.sum = model->ReadAll().Total();
    measure.seconds += Seconds() - start;
  }
  measure.seconds /= static_cast<double>(passes);
  measure.peak = Status("VmHWM") - before;
  return measure;
}

// The text that came out is read again by the plain reader, which has to find the same values.
Measure TimeWrite(const Peer& peer, const std::string& path, std::size_t passes) {
  Measure measure;
  const double before = Status("VmRSS");
  const std::unique_ptr<Model> rows = [&] { return peer.rows(Load(path)); }();
  std::ofstream("/proc/self/clear_refs") << "5";  // the peak starts again from here
  std::string text;
  for (std::size_t pass = 0; pass < passes; ++pass) {
    text = std::string();
    const double start = Seconds();
    text = peer.write(*rows);
    measure.seconds += Seconds() - start;
  }
  measure.seconds /= static_cast<double>(passes);
  measure.peak = Status("VmHWM") - before;
  measure.sum = ReadPlain(text)->ReadAll().Total();
  return measure;
}

// Runs this program as a child for one measure.
Measure InChild(const std::vector<std::string>& arguments) {
  std::ostringstream command;
  command << std::filesystem::read_symlink("/proc/self/exe").string();
  for (const std::string& argument : arguments) command << " '" << argument << "'";
  FILE* pipe = popen(command.str().c_str(), "r");
  if (!pipe) throw std::runtime_error("cannot start " + command.str());
  Measure measure;
  unsigned long long sum = 0;
  const int read = std::fscanf(pipe, "%lf %lf %llu", &measure.seconds, &measure.peak, &sum);
  measure.sum = sum;
  if (pclose(pipe) != 0 || read != 3) throw std::runtime_error("failed: " + command.str());
  return measure;
}

int Child(const std::vector<std::string>& arguments) {
  for (const Peer& peer : AllPeers()) {
    if (peer.name != arguments[1]) continue;
    const std::size_t passes = std::stoul(arguments[4]);
    const Measure measure =
        arguments[2] == "read" ? TimeRead(peer, arguments[3], passes) : TimeWrite(peer, arguments[3], passes);
    std::printf("%.9f %.0f %llu\n", measure.seconds, measure.peak,
                static_cast<unsigned long long>(measure.sum));
    return 0;
  }
  return 1;
}

double Minimum(const std::vector<double>& values) {
  return *std::min_element(values.begin(), values.end());
}

struct Line {
  std::string peer;
  double seconds;
  double peak;
};

struct Job {
  std::string task;
  std::size_t rows;
  std::string path;
};

std::vector<Line> RunJob(const Job& job, std::size_t repeats, const std::string& only) {
  std::map<std::string, std::vector<double>> seconds;
  std::map<std::string, std::vector<double>> peaks;
  std::uint64_t sum = 0;
  const std::size_t passes = std::max<std::size_t>(1, 20000 / job.rows);
  for (std::size_t repeat = 0; repeat < repeats; ++repeat)
    for (const Peer& peer : AllPeers()) {
      if (job.task == "write" && !peer.write) continue;
      if (!only.empty() && peer.name.find(only) == std::string::npos) continue;
      const Measure one = InChild({"--child", peer.name, job.task, job.path, std::to_string(passes)});
      if (sum == 0) sum = one.sum;
      if (one.sum != sum) throw std::runtime_error(peer.name + " has other values than its peers");
      seconds[peer.name].push_back(one.seconds);
      peaks[peer.name].push_back(one.peak);
    }
  std::vector<Line> lines;
  for (const Peer& peer : AllPeers())
    if (seconds.count(peer.name) != 0)
      lines.push_back({peer.name, Minimum(seconds[peer.name]), Minimum(peaks[peer.name])});
  return lines;
}

void PrintHead() {
  std::printf("| Task  |   Rows | Library             |  MB/s |    rows/s | peak / text | corvane is |\n");
  std::printf("|-------|-------:|---------------------|------:|----------:|------------:|-----------:|\n");
}

// How far the first peer's cost of a row spreads over the sizes.
void PrintSpread(const std::string& task, const std::vector<double>& rowCosts) {
  const auto [minimum, maximum] = std::minmax_element(rowCosts.begin(), rowCosts.end());
  std::printf("%s: the cost of a row spreads by %.0f%% over the sizes\n", task.c_str(),
              100 * (*maximum / *minimum - 1));
}

void Print(const Job& job, const std::vector<Line>& lines, double size) {
  for (const Line& line : lines) {
    std::printf("| %-5s | %6zu | %-19s | %5.0f | %9.0f | %11.2f | %9.2fx |\n", job.task.c_str(), job.rows,
                line.peer.c_str(), size / line.seconds / 1e6, static_cast<double>(job.rows) / line.seconds,
                line.peak / size, line.seconds / lines.front().seconds);
  }
  std::fflush(stdout);
}

struct Options {
  std::vector<std::size_t> rows = {1000, 10000, 100000};
  std::size_t repeats = 7;
  std::string only;
};

Options ParseOptions(const std::vector<std::string>& arguments) {
  Options options;
  for (std::size_t at = 0; at < arguments.size(); at += 2) {
    if (at + 1 == arguments.size())
      throw std::invalid_argument("usage: [--rows N] [--repeats N] [--only NAME]");
    if (arguments[at] == "--rows")
      options.rows = {std::stoul(arguments[at + 1])};
    else if (arguments[at] == "--repeats")
      options.repeats = std::max(1UL, std::stoul(arguments[at + 1]));
    else if (arguments[at] == "--only")
      options.only = arguments[at + 1];
    else
      throw std::invalid_argument("usage: [--rows N] [--repeats N] [--only NAME]");
  }
  return options;
}

int Parent(const Options& options) {
  const auto folder = std::filesystem::temp_directory_path() / ("norvik_bench." + std::to_string(getpid()));
  std::filesystem::create_directories(folder);
  PrintHead();
  std::map<std::string, std::vector<double>> rowCosts;
  for (const char* task : {"read", "write"})
    for (const std::size_t rows : options.rows) {
      const Job job{task, rows, (folder / std::to_string(rows)).string()};
      if (!std::filesystem::exists(job.path)) std::ofstream(job.path, std::ios::binary) << MakeAnswer(rows);
      const auto size = static_cast<double>(std::filesystem::file_size(job.path));
      const std::vector<Line> lines = RunJob(job, options.repeats, options.only);
      if (lines.empty()) continue;
      Print(job, lines, size);
      rowCosts[task].push_back(lines.front().seconds / static_cast<double>(rows));
    }
  for (const auto& [task, costs] : rowCosts) PrintSpread(task, costs);
  std::filesystem::remove_all(folder);
  return 0;
}

}  // namespace
}  // namespace bench

int main(int count, char** values) {
  const std::vector<std::string> arguments(values + 1, values + count);
  try {
    if (!arguments.empty() && arguments[0] == "--child") return bench::Child(arguments);
    return bench::Parent(bench::ParseOptions(arguments));
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "%s\n", failure.what());
    return 1;
  }
}
