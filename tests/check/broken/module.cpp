// A small module that keeps the contract but for the one fault that it is built with: norvik_fault, which the
// object that is linked beside this one defines. The fault "none" is sound.
#include <fcntl.h>

#include <QCloseEvent>
#include <QMessageBox>
#include <QPointer>
#include <QPushButton>
#include <QWidget>
#include <array>
#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <stdexcept>
#include <string>
#include <string_view>
#include <thread>
#include <utility>
#include <vector>

#include "data/corvane.h"
#include "platform/host_api.h"

extern "C" const char norvik_fault[];

#define MODULE_EXPORT extern "C" __attribute__((visibility("default")))

namespace {

bool Has(std::string_view fault) {
  return fault == norvik_fault;
}

struct Range {
  std::uint32_t first, last;
};

struct Library {
  const char* handleKey;  // null: public information
  const char* key;
  std::vector<Range> ordinals;
};

const std::array<Library, 6>& Libraries() {
  static const std::array<Library, 6> kLibraries = {{
      {nullptr,
       "CF15001",
       {{1, 10}, {20, 27}, {38, 47}, {58, 69}, {80, 93}, {104, 111}, {122, 127}, {184, 184}}},
      {"HANDLE_TRANSLATE", "CF19002", {{1, 8}}},
      {"HANDLE_ERROR", "CF23002", {{1, 8}}},
      {"HANDLE_PRINT", "CF14010", {{1, 7}}},
      {"HANDLE_SAFECOM", "ET16024", {{1, 12}}},
      {"HANDLE_EXCEL", "CF20023", {{1, 10}}},
  }};
  return kLibraries;
}

norvik_handle g_publicInformation = 0;
// Changes at each start and release: what began before ends without a further step.
int g_life = 0;

template <class Function>
Function Public(std::uint32_t ordinal) {
  return reinterpret_cast<Function>(norvik_module_function(g_publicInformation, ordinal));
}

std::uint32_t HandleOf(const char* key) {
  return Public<std::uint32_t (*)(const char*)>(123)(key);
}

[[noreturn]] void Misbehave() {
  std::abort();
}

// Reports a missing function.
void Refuse(const Library& library, std::uint32_t ordinal) {
  if (Has("missing_swallowed") && ordinal == 4 && library.key == std::string_view("CF14010")) return;
  if (Has("missing_wrong_key") && ordinal == 7 && library.key == std::string_view("CF19002")) {
    throw corvane::TException("CF19001");
  }
  if (Has("missing_foreign") && ordinal == 2) throw std::runtime_error("function 2");
  if (Has("missing_crash") && ordinal == 10 && library.key == std::string_view("CF20023")) Misbehave();
  throw corvane::TException(library.key);
}

void Bind(const Library& library, norvik_handle handle) {
  for (const Range& range : library.ordinals) {
    for (std::uint32_t ordinal = range.first; ordinal <= range.last; ++ordinal) {
      if (norvik_module_function(handle, ordinal) == nullptr) Refuse(library, ordinal);
    }
  }
}

// A screen: a window that announces itself to the host.
class Screen : public QWidget {
 public:
  explicit Screen(const char* name) : name_(name) {
    setObjectName(QString::fromLatin1(name));
    auto* ask = new QPushButton(QStringLiteral("?"), this);
    connect(ask, &QPushButton::clicked, this, [this] { Ask(); });
    handle_ = norvik_window_register([](void*, uint32_t, uintptr_t, intptr_t) -> intptr_t { return 0; }, this,
                                     static_cast<QWidget*>(this));
  }
  ~Screen() override { norvik_window_unregister(handle_); }

  void Open() {
    if (isVisible()) return;
    show();
    if (Enter(handle_)) Tell(0x824);
  }

 protected:
  void closeEvent(QCloseEvent*) override {
    if (!Has("handle_stays") && !Enter(0)) return;
    if (!Has("close_silent")) Tell(0x825);
    if (Has("close_keeps_window")) QMetaObject::invokeMethod(this, &QWidget::show, Qt::QueuedConnection);
  }

 private:
  // False if the host has ended the life meanwhile.
  bool Enter(norvik_handle handle) {
    const int life = g_life;
    Public<std::int32_t (*)(const char*, std::uint32_t)>(122)(name_, handle);
    if (Has("goes_on_after_release") && life != g_life) HandleOf("APPMAINFORMHANDLE");
    return life == g_life;
  }
  void Tell(std::uint32_t message) {
    if (Has("open_silent") && message == 0x824) return;
    const int life = g_life;
    const norvik_handle host = HandleOf("APPMAINFORMHANDLE");
    if (life == g_life) norvik_window_send(host, message, reinterpret_cast<std::uintptr_t>(this), 0);
  }
  void Ask() {
    const int life = g_life;
    const QPointer<QMessageBox> box = new QMessageBox(QMessageBox::Question, QStringLiteral("NorvikQry"),
                                                      QStringLiteral("?"), QMessageBox::Yes, this);
    box->exec();
    if (Has("falls_after_dialog") && life != g_life) Misbehave();
    delete box.data();
  }

  const char* name_;
  norvik_handle handle_;
};

struct Item {
  const char* name;
  const char* screen;
  Screen* window;
};
Item g_items[] = {{"ITEM1", "TfrmFirst", nullptr}, {"ITEM2", "TfrmSecond", nullptr}};

constexpr const char* kMenu =
    "<?xml version=\"1.0\" encoding=\"UTF-8\"?><iniplus><section name=\"MENU\">"
    "<row><ItemName>ITEM1</ItemName></row><row><ItemName>ITEM2</ItemName></row></section></iniplus>";

bool g_started = false;
int g_releases = 0;

const char* MenuText() {
  if (Has("menu_no_xml")) return "ITEM1;ITEM2";
  if (Has("menu_other_section")) return "<iniplus><section name=\"Menu\"/></iniplus>";
  if (Has("menu_empty")) return "<iniplus><section name=\"MENU\"/></iniplus>";
  return kMenu;
}

void OpenItem(Item& item) {
  const bool openedBefore = item.window != nullptr;
  if (Has("second_window") && openedBefore) (new Screen(item.screen))->Open();
  if (Has("replaced_window") && openedBefore) delete std::exchange(item.window, nullptr);
  if (Has("no_reopening") && openedBefore) return;
  if (Has("modal_message")) QMessageBox::warning(nullptr, "NorvikQry", "no columns");
  if (item.window == nullptr) item.window = new Screen(item.screen);
  item.window->Open();
}

// Loses something for good at each start.
void Grow() {
  if (Has("loses_memory")) [[maybe_unused]]
    char* volatile lost = new char[1000];
  if (Has("loses_files")) [[maybe_unused]]
    const int lost = open("/dev/null", O_RDONLY);
  if (Has("loses_threads")) std::thread([] { std::this_thread::sleep_for(std::chrono::hours(1)); }).detach();
}

void End() {
  ++g_life;
  g_started = false;
  for (Item& item : g_items) {
    if (item.window == nullptr) continue;
    if (Has("leaves_open_window") && item.window->isVisible()) continue;
    if (Has("leaves_closed_window") && !item.window->isVisible()) continue;
    delete std::exchange(item.window, nullptr);
  }
}

// What the library does as it is loaded.
const bool kLoaded = [] {
  if (Has("load_crash")) Misbehave();
  return true;
}();

}  // namespace

MODULE_EXPORT std::uint32_t InitModule(norvik_handle publicInformation) {
  if (Has("start_throws")) throw 15;
  End();
  const int life = g_life;
  g_publicInformation = publicInformation;
  if (Has("leaves_window_of_failed_start") && publicInformation == 0) new QWidget;
  Bind(Libraries()[0], publicInformation);
  for (const Library& library : Libraries()) {
    if (library.handleKey == nullptr) continue;
    const norvik_handle handle = HandleOf(library.handleKey);
    if (life != g_life) throw corvane::TException("CF30007");
    Bind(library, handle);
  }
  Grow();
  g_started = true;
  if (Has("keeps_buffer")) {
    char* buffer = nullptr;
    std::int32_t length = 0;
    char error[256] = {};
    Public<std::uint8_t (*)(char**, std::int32_t*, const char*, char*)>(40)(&buffer, &length, "CMLGUSERINFO",
                                                                            error);
  }
  return Has("start_result") ? 7 : 0;
}

MODULE_EXPORT void MenuConfig(char** buffer) {
  const char* text = MenuText();
  const std::size_t size = std::strlen(text) + 1;
  if (Has("menu_shared")) {
    static char shared[1000];
    std::memcpy(shared, text, size);
    *buffer = shared;
    return;
  }
  if (*buffer == nullptr || Has("menu_ignores_host_buffer")) *buffer = new char[size];
  std::memcpy(*buffer, text, size);
  if (Has("menu_overrun")) (*buffer)[size] = '\0';
}

MODULE_EXPORT std::int32_t FreeBuff(char* buffer) {
  if (Has("menu_shared")) return 0;
  if (Has("free_null_crash") && buffer == nullptr) Misbehave();
  delete[] buffer;
  return 0;
}

MODULE_EXPORT void CallFunc(const char* request, std::uint32_t) {
  if (Has("request_hangs")) std::this_thread::sleep_for(std::chrono::hours(1));
  std::string item;
  try {
    item = corvane::Row(request).getValue("ItemName");
  } catch (const corvane::TException&) {
    if (Has("request_swallowed")) return;
    throw;
  }
  if (!g_started && !Has("unstarted_pick_ignored")) throw corvane::TException("CF30007");
  if (!g_started) return;
  for (Item& known : g_items) {
    const std::string_view name = known.name;
    if (name == item || (Has("unknown_opens") && item.substr(0, name.size()) == name)) OpenItem(known);
  }
  if (Has("unknown_throws") && item == "no such item") throw corvane::TException("ET10057");
}

MODULE_EXPORT void Release() {
  ++g_releases;
  if (Has("release_unstarted_crash") && !g_started && g_releases == 1) Misbehave();
  if (Has("release_twice_crash") && !g_started && g_releases > 1) Misbehave();
  if (Has("release_exits") && g_started) std::exit(0);
  End();
}

// Exported by one fault only.
MODULE_EXPORT void Sixth() {}
