// Times the list view beside Qt's own on the same records, each in a process of its own, and prints one
// table.
//
// The parent starts itself once for each peer and repeat, peers in turn, so that what disturbs the machine
// disturbs all of them. A child makes the records, does the tasks and prints one line. Times are processor
// time and hold the repaint after each change; memory is what the process grew by from before the records
// to after the first paint, beside the records alone.
#include <malloc.h>
#include <unistd.h>

#include <QApplication>
#include <QPixmap>
#include <QWidget>
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <ctime>
#include <filesystem>
#include <fstream>
#include <map>
#include <stdexcept>

#include "bench/list_view/peers.h"
#include "data/corvane_stream.h"
#include "data/list.h"

namespace list_bench {
namespace {

const std::vector<std::string> kTasks = {"fill", "first paint", "tick all", "sum of ticked", "delete half"};

constexpr const char* kReading = "reading";

struct Measure {
  std::vector<double> seconds;  // one for each task
  double memory = 0;            // times the records alone
  std::string sum;
};

double Seconds() {
  timespec now{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

double Resident() {
  malloc_trim(0);
  std::ifstream status("/proc/self/statm");
  double total = 0;
  double resident = 0;
  status >> total >> resident;
  return resident * static_cast<double>(sysconf(_SC_PAGESIZE));
}

// The fields of the columns and as many again, as an answer of the bank has them.
corvane::List MakeRecords(int rows) {
  corvane::List list;
  for (int i = 0; i < rows; ++i) {
    corvane::Row row;
    for (const Column& column : Columns()) {
      row[column.field] = column.field + std::to_string(1000000 + i);
      row[std::string("X") + column.field] = "further " + std::to_string(i % 977);
    }
    row["PAYAMT"] = std::to_string(1000 + i * 37 % 900000) + ".5";
    row["QURYNUM"] = std::to_string(i % 5000);
    list.addRow(std::move(row));
  }
  return list;
}

template <class Task>
double Timed(ListPeer& peer, bool repaint, Task&& task) {
  const double start = Seconds();
  task();
  if (repaint) {
    QCoreApplication::processEvents();
    peer.Widget()->grab();
  }
  return Seconds() - start;
}

Measure Run(const Peer& peer, int rows) {
  Measure measure;
  const std::unique_ptr<ListPeer> list = peer.make();
  list->Widget()->resize(1200, 700);
  list->Widget()->show();
  list->Widget()->grab();
  const double before = Resident();
  corvane::List records = MakeRecords(rows);
  const double alone = Resident() - before;
  const auto add = [&](double seconds) { measure.seconds.push_back(seconds); };
  add(Timed(*list, false, [&] { list->Fill(records); }));
  add(Timed(*list, true, [] {}));
  records = corvane::List();
  measure.memory = (Resident() - before) / alone;
  add(Timed(*list, true, [&] { list->TickAll(); }));
  add(Timed(*list, false, [&] { measure.sum = list->SumOfTicked(); }));
  add(Timed(*list, true, [&] { list->DeleteOdd(); }));
  if (list->Rows() != (rows + 1) / 2) throw std::runtime_error("wrong number of rows left");
  return measure;
}

// Seconds that reading the bank's answer takes, from its text to its list of records.
double ReadAnswer(int rows) {
  corvane::List records = MakeRecords(rows);
  records.setAttribute("name", "resultList");
  corvane::CorvaneStream answer;
  answer.addList(records);
  const std::string text = answer.toString();
  const double start = Seconds();
  corvane::CorvaneStream read(text);
  if (read.getList("resultList").size() != static_cast<std::uint32_t>(rows)) {
    throw std::runtime_error("wrong number of rows read");
  }
  return Seconds() - start;
}

int Child(const std::string& name, int rows, int argc, char** argv) {
  if (name == kReading) {
    std::printf("%.9f\n", ReadAnswer(rows));
    return 0;
  }
  qputenv("QT_QPA_PLATFORM", "offscreen");
  const QApplication application(argc, argv);
  for (const Peer& peer : AllPeers()) {
    if (peer.name != name) continue;
    const Measure measure = Run(peer, rows);
    for (const double seconds : measure.seconds) std::printf("%.9f ", seconds);
    std::printf("%.4f %s\n", measure.memory, measure.sum.c_str());
    return 0;
  }
  return 1;
}

// Runs the child and hands its output to a function that says whether it could read it.
template <class Reader>
void RunChild(const std::string& name, int rows, Reader&& reader) {
  const std::string program = std::filesystem::read_symlink("/proc/self/exe").string();
  const std::string command = "'" + program + "' --child " + name + " " + std::to_string(rows);
  FILE* pipe = popen(command.c_str(), "r");
  if (!pipe) throw std::runtime_error("cannot start " + command);
  const bool read = reader(pipe);
  if (pclose(pipe) != 0 || !read) throw std::runtime_error("failed: " + command);
}

Measure InChild(const std::string& name, int rows) {
  Measure measure;
  measure.seconds.resize(kTasks.size());
  RunChild(name, rows, [&measure](FILE* pipe) {
    char sum[64] = {};
    bool read = true;
    for (double& seconds : measure.seconds) read = std::fscanf(pipe, "%lf", &seconds) == 1 && read;
    read = std::fscanf(pipe, "%lf %63s", &measure.memory, sum) == 2 && read;
    measure.sum = sum;
    return read;
  });
  return measure;
}

double ReadingInChild(int rows) {
  double seconds = 0;
  RunChild(kReading, rows, [&seconds](FILE* pipe) { return std::fscanf(pipe, "%lf", &seconds) == 1; });
  return seconds;
}

double Median(std::vector<double> values) {
  std::sort(values.begin(), values.end());
  return values[values.size() / 2];
}

// The first two tasks make what the operator waits for after the reading.
void PrintBesideReading(const std::vector<Measure>& ours, const std::vector<double>& reading) {
  std::vector<double> shown;
  for (const Measure& one : ours) shown.push_back(one.seconds[0] + one.seconds[1]);
  const double read = Median(reading);
  std::printf("\nReading the answer takes %.2f ms; fill and first paint together take %.2f times that.\n",
              read * 1000, Median(shown) / read);
}

void Print(int rows, const std::map<std::string, std::vector<Measure>>& measures) {
  std::printf("| %-15s |   Rows | %-13s |       ms | ours is |\n", "Task", "List");
  std::printf("|-----------------|-------:|---------------|---------:|--------:|\n");
  for (std::size_t task = 0; task <= kTasks.size(); ++task) {
    const bool memory = task == kTasks.size();
    const auto median = [&](const std::string& name) {
      std::vector<double> values;
      for (const Measure& one : measures.at(name))
        values.push_back(memory ? one.memory : one.seconds[task] * 1000);
      return Median(values);
    };
    if (memory) std::printf("\nMemory with the records, times the records alone:\n\n");
    const double ours = median(AllPeers().front().name);
    for (const Peer& peer : AllPeers()) {
      const double value = median(peer.name);
      if (memory) {
        std::printf("- %s: %.2f\n", peer.name.c_str(), value);
      } else {
        std::printf("| %-15s | %6d | %-13s | %8.2f | %6.2fx |\n", kTasks[task].c_str(), rows,
                    peer.name.c_str(), value, value / ours);
      }
    }
  }
}

int Parent(int rows, int repeats) {
  std::map<std::string, std::vector<Measure>> measures;
  std::vector<double> reading;
  std::string sum;
  for (int repeat = 0; repeat < repeats; ++repeat) {
    reading.push_back(ReadingInChild(rows));
    for (const Peer& peer : AllPeers()) {
      measures[peer.name].push_back(InChild(peer.name, rows));
      if (sum.empty()) sum = measures[peer.name].back().sum;
      if (measures[peer.name].back().sum != sum) throw std::runtime_error(peer.name + " has another sum");
    }
  }
  Print(rows, measures);
  PrintBesideReading(measures.at(AllPeers().front().name), reading);
  return 0;
}

}  // namespace
}  // namespace list_bench

// norvik_list_bench [rows [repeats]]: 100000 rows and 5 repeats by default.
int main(int argc, char** argv) {
  const auto number = [&](int at, int otherwise) {
    return argc > at ? std::max(1, std::atoi(argv[at])) : otherwise;
  };
  try {
    if (argc == 4 && std::string(argv[1]) == "--child")
      return list_bench::Child(argv[2], number(3, 1), argc, argv);
    return list_bench::Parent(number(1, 100000), number(2, 5));
  } catch (const std::exception& failure) {
    std::fprintf(stderr, "%s\n", failure.what());
    return 1;
  }
}
