#include <gtest/gtest.h>

#include "platform/host_api.h"
#include "tests/platform/c_host.h"

namespace {

void First() {}
void Second() {}

void* Pointer(void (*function)()) {
  return reinterpret_cast<void*>(function);
}

TEST(HostApi, IsUsableFromC) {
  EXPECT_EQ(c_host_run(), 0);
}

TEST(Module, ATableIsCopiedAndItsFirstEntryOfAnOrdinalCounts) {
  norvik_ordinal table[] = {{1, Pointer(First)},
                            {184, Pointer(Second)},
                            {1, Pointer(Second)},
                            {5, nullptr},
                            {0xFFFFFFFF, Pointer(First)}};
  const norvik_handle module = norvik_module_register(table, std::size(table));
  ASSERT_NE(module, 0u);
  for (auto& entry : table) entry = {};
  const struct {
    uint32_t ordinal;
    void* function;
  } rows[] = {
      {1, Pointer(First)}, {184, Pointer(Second)}, {5, nullptr}, {0, nullptr}, {0xFFFFFFFF, Pointer(First)}};
  for (const auto& row : rows)
    EXPECT_EQ(norvik_module_function(module, row.ordinal), row.function) << row.ordinal;
  norvik_module_close(module);
  EXPECT_EQ(norvik_module_function(module, 1), nullptr);
  norvik_module_close(module);
}

TEST(Module, AnEmptyTableIsALibraryAndNoTableIsNone) {
  const norvik_handle module = norvik_module_register(nullptr, 0);
  EXPECT_NE(module, 0u);
  EXPECT_EQ(norvik_module_function(module, 1), nullptr);
  norvik_module_close(module);
  EXPECT_EQ(norvik_module_register(nullptr, 1), 0u);
}

TEST(Module, ASharedObjectGivesItsOwnOrdinalsAndNotThoseItDependsOn) {
  const norvik_handle module = norvik_module_open(OUTER_HOST_LIBRARY);
  ASSERT_NE(module, 0u);
  const auto call = [&](uint32_t ordinal) {
    const auto function = reinterpret_cast<int (*)()>(norvik_module_function(module, ordinal));
    return function ? function() : 0;
  };
  EXPECT_EQ(call(1), 1);
  EXPECT_EQ(call(7), 7);
  EXPECT_EQ(norvik_module_function(module, 184), nullptr);
  EXPECT_EQ(norvik_module_function(module, 2), nullptr);
  const norvik_handle again = norvik_module_open(OUTER_HOST_LIBRARY);
  EXPECT_NE(again, module);
  norvik_module_close(again);
  EXPECT_EQ(call(7), 7);
  norvik_module_close(module);
  EXPECT_EQ(norvik_module_function(module, 7), nullptr);
}

TEST(Module, WhatCannotBeLoadedHasNoHandle) {
  for (const char* path : {static_cast<const char*>(nullptr), "", "/nowhere/libhost.so", "/etc/passwd"}) {
    EXPECT_EQ(norvik_module_open(path), 0u) << (path ? path : "null");
  }
}

TEST(Handle, OfAnotherKindIsNone) {
  const auto procedure = [](void*, uint32_t, uintptr_t, intptr_t) -> intptr_t { return 5; };
  const norvik_handle module = norvik_module_register(nullptr, 0);
  const norvik_handle window = norvik_window_register(procedure, nullptr, nullptr);
  const norvik_handle mutex = norvik_mutex_create("another kind");
  norvik_module_close(window);
  norvik_mutex_close(window);
  norvik_bank_directory_unregister(window);
  norvik_window_unregister(module);
  EXPECT_EQ(norvik_window_send(window, 0, 0, 0), 5);
  EXPECT_EQ(norvik_window_send(module, 0, 0, 0), 0);
  EXPECT_EQ(norvik_mutex_wait(window), NORVIK_MUTEX_FAILED);
  EXPECT_EQ(norvik_mutex_release(module), 0);
  for (const norvik_handle stray : {0u, 1u, 0xFFFFFFFFu}) {
    EXPECT_EQ(norvik_window_send(stray, 0, 0, 0), 0);
    EXPECT_EQ(norvik_mutex_wait(stray), NORVIK_MUTEX_FAILED);
    EXPECT_EQ(norvik_module_function(stray, 1), nullptr);
  }
  norvik_module_close(module);
  norvik_window_unregister(window);
  norvik_mutex_close(mutex);
}

TEST(Handle, OfAClosedObjectIsNotGivenOutAgainAtOnce) {
  const norvik_handle first = norvik_module_register(nullptr, 0);
  norvik_module_close(first);
  for (int i = 0; i < 1000; ++i) {
    const norvik_handle next = norvik_module_register(nullptr, 0);
    EXPECT_NE(next, first);
    norvik_module_close(next);
  }
}

}  // namespace
