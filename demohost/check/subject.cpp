#include "demohost/check/subject.h"

#include <cxxabi.h>
#include <dlfcn.h>

#include <QWidget>
#include <cstdlib>
#include <memory>
#include <typeinfo>

#include "data/corvane.h"
#include "demohost/libraries/support.h"
#include "platform/code_page.h"

namespace demohost::check {
namespace {

// The name of the class of the exception that is being handled.
std::string ExceptionType() {
  const std::type_info* type = abi::__cxa_current_exception_type();
  if (type == nullptr) return "an exception that isn't of C++";
  int status = 0;
  const std::unique_ptr<char, void (*)(void*)> name(
      abi::__cxa_demangle(type->name(), nullptr, nullptr, &status), &std::free);
  return status == 0 ? name.get() : type->name();
}

}  // namespace

CallEnd Caught(const std::function<void()>& call) {
  CallEnd end;
  try {
    call();
  } catch (const corvane::TException& exception) {
    end.kind = CallEnd::kContract;
    for (const std::string& key : exception.getErrors()) end.keys.push_back(key);
    end.words = "it threw corvane::TException with " + Quoted(exception.what());
  } catch (const std::exception& exception) {
    end.kind = CallEnd::kForeign;
    end.words = "it threw " + ExceptionType() + " with " + Quoted(exception.what());
  } catch (...) {
    end.kind = CallEnd::kForeign;
    end.words = "it threw " + ExceptionType();
  }
  return end;
}

Subject::Subject(CaseRun& run) : run_(run) {
  run_.Step("loading");
  library_ = dlopen(run.Module().c_str(), RTLD_NOW | RTLD_LOCAL);
  if (library_ == nullptr) run_.Fail(dlerror());
  initModule_ = Find<norvik_init_module>("InitModule");
  menuConfig_ = Find<norvik_menu_config>("MenuConfig");
  freeBuff_ = Find<norvik_free_buff>("FreeBuff");
  callFunc_ = Find<norvik_call_func>("CallFunc");
  release_ = Find<norvik_release>("Release");
}

Subject::~Subject() {
  run_.Step("unloading");
  dlclose(library_);
}

template <class Function>
Function Subject::Find(const char* name) {
  void* symbol = dlsym(library_, name);
  if (symbol == nullptr) run_.Fail(std::string("there is no export ") + name);
  return reinterpret_cast<Function>(symbol);
}

CallEnd Subject::Init(norvik_handle publicInformation, const std::string& where) {
  run_.Step("InitModule" + where);
  return Caught([&] { initResult_ = initModule_(publicInformation); });
}

CallEnd Subject::Call(const std::string& request, const std::string& where) {
  run_.Step("CallFunc of " + Quoted(request) + where);
  return Caught([&] { callFunc_(request.c_str(), 0); });
}

CallEnd Subject::Release(const std::string& where) {
  run_.Step("Release" + where);
  return Caught([&] { release_(); });
}

CallEnd Subject::Menu(char** buffer) {
  run_.Step("MenuConfig");
  return Caught([&] { menuConfig_(buffer); });
}

CallEnd Subject::Free(char* buffer) {
  run_.Step(buffer == nullptr ? "FreeBuff of null" : "FreeBuff");
  return Caught([&] { freeBuff_(buffer); });
}

void Subject::Start(const std::string& where) {
  const CallEnd end = Init(run_.Host().PublicInformation(), where);
  run_.Expect(end.kind == CallEnd::kReturned, "InitModule" + where + ": " + end.words);
  run_.Expect(initResult_ == 0, "InitModule" + where + ": it returned " + std::to_string(initResult_));
}

void Subject::Pick(const std::string& item) {
  const CallEnd end = Call(RequestFor(item));
  run_.Expect(end.kind == CallEnd::kReturned, "CallFunc of " + Quoted(item) + ": " + end.words);
  Settle();
}

void Subject::End(std::size_t buffers) {
  const CallEnd end = Release();
  run_.Expect(end.kind == CallEnd::kReturned, "Release: " + end.words);
  Settle();
  for (const QWidget* window : run_.Host().Windows()) {
    run_.Fail("Release left a window \"" + window->objectName().toStdString() + "\" of class " +
              window->metaObject()->className());
  }
  run_.Expect(OutstandingBuffers() <= buffers, "Release left " +
                                                   std::to_string(OutstandingBuffers() - buffers) +
                                                   " buffers of the host not given back");
}

std::string Subject::MenuText() {
  char* buffer = nullptr;
  const CallEnd end = Menu(&buffer);
  run_.Expect(end.kind == CallEnd::kReturned, "MenuConfig: " + end.words);
  run_.Expect(buffer != nullptr, "MenuConfig left the null buffer null");
  std::string text = buffer;
  const CallEnd freed = Free(buffer);
  run_.Expect(freed.kind == CallEnd::kReturned, "FreeBuff: " + freed.words);
  return text;
}

std::vector<std::string> Subject::Items() {
  const std::string text = MenuText();
  corvane::Iniplus menu;
  const CallEnd end = Caught([&] { menu.fromString(text); });
  run_.Expect(end.kind == CallEnd::kReturned, "the menu text isn't an iniplus: " + Quoted(text));
  run_.Expect(menu.find("MENU") != menu.end(), "the menu text has no section MENU: " + Quoted(text));
  std::vector<std::string> items;
  const corvane::List rows = menu.getSection("MENU");
  for (const corvane::Row& row : rows) {
    items.push_back(row.getValue("ItemName"));
    run_.Expect(!items.back().empty(), "a row of the menu names no item: " + Quoted(text));
  }
  return items;
}

std::string RequestFor(const std::string& item) {
  corvane::Row request;
  request["ItemName"] = item;
  return request.toString();
}

}  // namespace demohost::check
