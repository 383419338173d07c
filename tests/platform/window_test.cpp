#include "platform/window.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/bank_directory.h"

namespace {

struct Witness {
  norvik_handle self = 0;
  int calls = 0;
  uintptr_t wparam = 0;
};

intptr_t Procedure(void* context, uint32_t message, uintptr_t wparam, intptr_t lparam) {
  auto& witness = *static_cast<Witness*>(context);
  ++witness.calls;
  witness.wparam = wparam;
  if (message == 0x10) norvik_window_unregister(witness.self);
  return lparam;
}

TEST(Window, TakesPointersWholeAndAnswersWithThem) {
  Witness witness;
  const norvik_handle window = norvik_window_register(Procedure, &witness, &witness);
  const auto address = reinterpret_cast<uintptr_t>(&witness);
  EXPECT_EQ(norvik_window_send(window, 0x824, address, static_cast<intptr_t>(address)),
            static_cast<intptr_t>(address));
  EXPECT_EQ(witness.wparam, address);
  EXPECT_EQ(norvik::WindowWidget(window), &witness);
  norvik_window_unregister(window);
  EXPECT_EQ(norvik_window_send(window, 0x824, 1, 1), 0);
  EXPECT_EQ(norvik::WindowWidget(window), nullptr);
  EXPECT_EQ(witness.calls, 1);
}

TEST(Window, MayEndInsideItsOwnProcedure) {
  Witness witness;
  witness.self = norvik_window_register(Procedure, &witness, nullptr);
  EXPECT_EQ(norvik_window_send(witness.self, 0x10, 0, 7), 7);
  EXPECT_FALSE(norvik::IsWindow(witness.self));
}

TEST(Window, NeedsAProcedure) {
  EXPECT_EQ(norvik_window_register(nullptr, nullptr, nullptr), 0u);
}

TEST(BankDirectory, IsFoundByItsHandleUntilItEnds) {
  int context = 0;
  const norvik_bank_directory directory = {
      &context, [](void*, uint32_t) -> const char* { return nullptr; },
      [](void*, const char*, const char*) { return 1; },
      [](void*, const char*, const char*, const char*, const char*) -> const char* { return "name"; }};
  const norvik_handle handle = norvik_bank_directory_register(&directory);
  const auto found = norvik::FindBankDirectory(handle);
  ASSERT_TRUE(found);
  EXPECT_EQ(found->context, &context);
  EXPECT_STREQ(found->bank_name(nullptr, "", "", "", ""), "name");
  norvik_bank_directory_unregister(handle);
  EXPECT_FALSE(norvik::FindBankDirectory(handle));
  EXPECT_FALSE(norvik::FindBankDirectory(0));
}

TEST(BankDirectory, WithoutAFunctionHasNoHandle) {
  EXPECT_EQ(norvik_bank_directory_register(nullptr), 0u);
  for (int missing = 0; missing < 3; ++missing) {
    norvik_bank_directory directory = {
        nullptr, [](void*, uint32_t) -> const char* { return nullptr; },
        [](void*, const char*, const char*) { return 1; },
        [](void*, const char*, const char*, const char*, const char*) -> const char* { return nullptr; }};
    if (missing == 0) directory.top_code = nullptr;
    if (missing == 1) directory.has_area = nullptr;
    if (missing == 2) directory.bank_name = nullptr;
    EXPECT_EQ(norvik_bank_directory_register(&directory), 0u) << missing;
  }
}

}  // namespace
