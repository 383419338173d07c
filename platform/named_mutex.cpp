// The named mutexes of platform/host_api.h, where their functions are declared.
#include <condition_variable>
#include <map>
#include <mutex>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "platform/handle_table.h"

namespace norvik {
namespace {

// A mutex that a thread may own several times over, and that notices when its owner ends.
class NamedMutex {
 public:
  // True if the owner before ended without releasing.
  bool Wait() {
    std::unique_lock lock(guard_);
    const auto self = std::this_thread::get_id();
    if (count_ > 0 && owner_ == self) {
      ++count_;
      return false;
    }
    free_.wait(lock, [this] { return count_ == 0; });
    owner_ = self;
    count_ = 1;
    return std::exchange(abandoned_, false);
  }

  bool Release() {
    const std::lock_guard lock(guard_);
    if (count_ == 0 || owner_ != std::this_thread::get_id()) return false;
    if (--count_ == 0) free_.notify_one();
    return true;
  }

  // The calling thread ends: what it still owns goes to the next that waits, marked as abandoned.
  void AbandonByThisThread() {
    const std::lock_guard lock(guard_);
    if (count_ == 0 || owner_ != std::this_thread::get_id()) return;
    count_ = 0;
    abandoned_ = true;
    free_.notify_one();
  }

 private:
  std::mutex guard_;
  std::condition_variable free_;
  std::thread::id owner_;
  unsigned count_ = 0;
  bool abandoned_ = false;
};

// The mutexes that this thread has waited for; those it still owns when it ends are abandoned.
class WaitedByThread {
 public:
  WaitedByThread() = default;
  WaitedByThread(const WaitedByThread&) = delete;
  WaitedByThread& operator=(const WaitedByThread&) = delete;
  ~WaitedByThread() {
    for (const auto& waited : mutexes_) {
      if (const auto mutex = waited.lock()) mutex->AbandonByThisThread();
    }
  }

  void Add(const std::shared_ptr<NamedMutex>& mutex) {
    std::erase_if(mutexes_, [&](const auto& waited) { return waited.expired() || waited.lock() == mutex; });
    mutexes_.push_back(mutex);
  }

 private:
  std::vector<std::weak_ptr<NamedMutex>> mutexes_;
};

thread_local WaitedByThread g_waited;

struct MutexHandle : HandleObject {
  explicit MutexHandle(std::shared_ptr<NamedMutex> shared) : mutex(std::move(shared)) {}
  std::shared_ptr<NamedMutex> mutex;
};

struct Names {
  std::mutex guard;
  std::map<std::string, std::weak_ptr<NamedMutex>, std::less<>> mutexes;
};

Names& TheNames() {
  static Names* const names = new Names;
  return *names;
}

norvik_handle MutexByName(const char* name, bool create) noexcept {
  if (!name) return 0;
  try {
    Names& names = TheNames();
    const std::lock_guard lock(names.guard);
    std::erase_if(names.mutexes, [](const auto& entry) { return entry.second.expired(); });
    const auto found = names.mutexes.find(std::string_view(name));
    std::shared_ptr<NamedMutex> mutex = found == names.mutexes.end() ? nullptr : found->second.lock();
    if (!mutex) {
      if (!create) return 0;
      mutex = std::make_shared<NamedMutex>();
      names.mutexes.insert_or_assign(name, mutex);
    }
    return PutHandle(std::make_shared<MutexHandle>(std::move(mutex)));
  } catch (const std::exception&) {
    return 0;
  }
}

}  // namespace
}  // namespace norvik

norvik_handle norvik_mutex_create(const char* name) {
  return norvik::MutexByName(name, true);
}

norvik_handle norvik_mutex_open(const char* name) {
  return norvik::MutexByName(name, false);
}

uint32_t norvik_mutex_wait(norvik_handle mutex) {
  const auto found = norvik::FindHandleOf<norvik::MutexHandle>(mutex);
  if (!found) return NORVIK_MUTEX_FAILED;
  try {
    const auto shared = found->mutex;
    norvik::g_waited.Add(shared);
    return shared->Wait() ? NORVIK_MUTEX_ABANDONED : NORVIK_MUTEX_ACQUIRED;
  } catch (const std::exception&) {
    return NORVIK_MUTEX_FAILED;
  }
}

int norvik_mutex_release(norvik_handle mutex) {
  const auto found = norvik::FindHandleOf<norvik::MutexHandle>(mutex);
  return found && found->mutex->Release() ? 1 : 0;
}

void norvik_mutex_close(norvik_handle mutex) {
  norvik::CloseHandleOf<norvik::MutexHandle>(mutex);
}
