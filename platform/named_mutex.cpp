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
    std::unique_lock lock(m_guard);
    const auto self = std::this_thread::get_id();
    if (m_count > 0 && m_owner == self) {
      ++m_count;
      return false;
    }
    m_free.wait(lock, [this] { return m_count == 0; });
    m_owner = self;
    m_count = 1;
    return std::exchange(m_abandoned, false);
  }

  bool Release() {
    const std::lock_guard lock(m_guard);
    if (m_count == 0 || m_owner != std::this_thread::get_id()) return false;
    if (--m_count == 0) m_free.notify_one();
    return true;
  }

  // The calling thread ends: what it still owns goes to the next that waits, marked as abandoned.
  void AbandonByThisThread() {
    const std::lock_guard lock(m_guard);
    if (m_count == 0 || m_owner != std::this_thread::get_id()) return;
    m_count = 0;
    m_abandoned = true;
    m_free.notify_one();
  }

 private:
  std::mutex m_guard;
  std::condition_variable m_free;
  std::thread::id m_owner;
  unsigned m_count = 0;
  bool m_abandoned = false;
};

// The mutexes that this thread has waited for; those it still owns when it ends are abandoned.
class WaitedByThread {
 public:
  WaitedByThread() = default;
  WaitedByThread(const WaitedByThread&) = delete;
  WaitedByThread& operator=(const WaitedByThread&) = delete;
  ~WaitedByThread() {
    for (const auto& waited : m_mutexes) {
      if (const auto mutex = waited.lock()) mutex->AbandonByThisThread();
    }
  }

  void Add(const std::shared_ptr<NamedMutex>& mutex) {
    std::erase_if(m_mutexes, [&](const auto& waited) { return waited.expired() || waited.lock() == mutex; });
    m_mutexes.push_back(mutex);
  }

 private:
  std::vector<std::weak_ptr<NamedMutex>> m_mutexes;
};

thread_local WaitedByThread t_waited;

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
    norvik::t_waited.Add(shared);
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
