#include "c_host.h"

#include <string.h>

static uint32_t answer(const char* key) {
  return (uint32_t)strlen(key);
}

static intptr_t procedure(void* context, uint32_t message, uintptr_t wparam, intptr_t lparam) {
  *(uintptr_t*)context = wparam;
  return (intptr_t)message + lparam;
}

static const char* top_code(void* context, uint32_t index) {
  (void)context;
  return index == 0 ? "CN" : NULL;
}

static int has_area(void* context, const char* code, const char* area) {
  (void)context;
  return strcmp(code, "CN") == 0 && strcmp(area, "1000") == 0;
}

static const char* bank_name(void* context, const char* code, const char* area, const char* type,
                             const char* number) {
  return has_area(context, code, area) && strcmp(type, "102") == 0 && strcmp(number, "102100099996") == 0
             ? "name"
             : NULL;
}

int c_host_run(void) {
  uint32_t (*function)(const char*) = answer;
  norvik_ordinal table[1] = {{123, NULL}};
  memcpy(&table[0].function, &function, sizeof function);
  const norvik_handle module = norvik_module_register(table, 1);
  void* found = norvik_module_function(module, 123);
  uint32_t (*bound)(const char*) = NULL;
  memcpy(&bound, &found, sizeof found);
  if (!bound || bound("four") != 4) return 1;
  norvik_module_close(module);

  uintptr_t seen = 0;
  const norvik_handle window = norvik_window_register(procedure, &seen, NULL);
  if (norvik_window_send(window, 0x7E9, UINTPTR_MAX, -1) != 0x7E8 || seen != UINTPTR_MAX) return 2;
  norvik_window_unregister(window);

  const norvik_handle mutex = norvik_mutex_create("c host");
  if (norvik_mutex_wait(mutex) != NORVIK_MUTEX_ACQUIRED || !norvik_mutex_release(mutex)) return 3;
  norvik_mutex_close(mutex);

  const norvik_bank_directory directory = {NULL, top_code, has_area, bank_name};
  const norvik_handle banks = norvik_bank_directory_register(&directory);
  if (banks == 0) return 4;
  norvik_bank_directory_unregister(banks);
  return 0;
}
