#include <gtest/gtest.h>

#include <atomic>
#include <chrono>
#include <future>
#include <thread>
#include <vector>

#include "platform/host_api.h"

namespace {

using namespace std::chrono_literals;

template <class Work>
auto OnAnotherThread(Work work) {
  return std::async(std::launch::async, work);
}

TEST(NamedMutex, IsOneForAllHandlesOfItsName) {
  EXPECT_EQ(norvik_mutex_open("gate"), 0u);
  EXPECT_EQ(norvik_mutex_create(nullptr), 0u);
  const norvik_handle made = norvik_mutex_create("gate");
  const norvik_handle opened = norvik_mutex_open("gate");
  EXPECT_NE(opened, 0u);
  EXPECT_NE(opened, made);
  EXPECT_EQ(norvik_mutex_open("Gate"), 0u);
  EXPECT_EQ(norvik_mutex_wait(made), NORVIK_MUTEX_ACQUIRED);
  EXPECT_EQ(norvik_mutex_release(opened), 1);
  EXPECT_EQ(norvik_mutex_release(opened), 0);
  norvik_mutex_close(made);
  EXPECT_NE(norvik_mutex_open("gate"), 0u) << "one handle is still open";
}

TEST(NamedMutex, EndsWithItsLastHandle) {
  const norvik_handle first = norvik_mutex_create("short life");
  const norvik_handle second = norvik_mutex_create("short life");
  norvik_mutex_close(first);
  norvik_mutex_close(first);
  const norvik_handle third = norvik_mutex_open("short life");
  EXPECT_NE(third, 0u);
  norvik_mutex_close(second);
  norvik_mutex_close(third);
  EXPECT_EQ(norvik_mutex_open("short life"), 0u);
  EXPECT_EQ(norvik_mutex_wait(second), NORVIK_MUTEX_FAILED);
}

TEST(NamedMutex, IsFreeWhenAllWaitsOfItsOwnerAreGivenBack) {
  const norvik_handle mutex = norvik_mutex_create("counted");
  for (int i = 0; i < 3; ++i) EXPECT_EQ(norvik_mutex_wait(mutex), NORVIK_MUTEX_ACQUIRED);
  auto waiter = OnAnotherThread([mutex] {
    const uint32_t result = norvik_mutex_wait(mutex);
    norvik_mutex_release(mutex);
    return result;
  });
  EXPECT_EQ(OnAnotherThread([mutex] { return norvik_mutex_release(mutex); }).get(), 0) << "not the owner";
  for (int i = 0; i < 2; ++i) EXPECT_EQ(norvik_mutex_release(mutex), 1);
  EXPECT_EQ(waiter.wait_for(50ms), std::future_status::timeout);
  EXPECT_EQ(norvik_mutex_release(mutex), 1);
  EXPECT_EQ(waiter.get(), NORVIK_MUTEX_ACQUIRED);
  norvik_mutex_close(mutex);
}

TEST(NamedMutex, OfAThreadThatEndedIsAbandonedOnce) {
  const norvik_handle mutex = norvik_mutex_create("abandoned");
  std::promise<void> held, end;
  std::thread owner([&] {
    for (int i = 0; i < 2; ++i) norvik_mutex_wait(mutex);
    held.set_value();
    end.get_future().wait();
  });
  held.get_future().wait();
  auto waiter = OnAnotherThread([mutex] {
    std::vector<uint32_t> results;
    for (int i = 0; i < 2; ++i) {
      results.push_back(norvik_mutex_wait(mutex));
      norvik_mutex_release(mutex);
    }
    return results;
  });
  EXPECT_EQ(waiter.wait_for(50ms), std::future_status::timeout);
  end.set_value();
  owner.join();
  EXPECT_EQ(waiter.get(), (std::vector<uint32_t>{NORVIK_MUTEX_ABANDONED, NORVIK_MUTEX_ACQUIRED}));
  norvik_mutex_close(mutex);
}

TEST(NamedMutex, ReleasedInTimeIsNotAbandonedAtTheThreadsEnd) {
  const norvik_handle mutex = norvik_mutex_create("in time");
  std::thread([mutex] {
    norvik_mutex_wait(mutex);
    norvik_mutex_release(mutex);
  }).join();
  EXPECT_EQ(norvik_mutex_wait(mutex), NORVIK_MUTEX_ACQUIRED);
  norvik_mutex_release(mutex);
  norvik_mutex_close(mutex);
}

TEST(NamedMutex, LetsOneThreadInAtATime) {
  const norvik_handle mutex = norvik_mutex_create("crowd");
  std::atomic<int> inside = 0;
  std::atomic<bool> crowded = false;
  std::vector<std::thread> threads;
  for (int i = 0; i < 8; ++i) {
    threads.emplace_back([&] {
      for (int round = 0; round < 200; ++round) {
        norvik_mutex_wait(mutex);
        if (++inside != 1) crowded = true;
        --inside;
        norvik_mutex_release(mutex);
      }
    });
  }
  for (auto& thread : threads) thread.join();
  EXPECT_FALSE(crowded);
  norvik_mutex_close(mutex);
}

}  // namespace
