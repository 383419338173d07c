/* What the module and its host share: library functions by ordinal, windows that take messages, named mutexes
   and the bank directory. The header is C11 and C++.

   Conventions
   1. Handles are 32-bit numbers that this library gives out; 0 is no handle. A handle that was closed, was
      never given out or belongs to another kind of object is harmless: look-ups give null or 0, sends give
      0, waits fail, closing does nothing. A number isn't given out again before all others have been.
   2. Memory. What a caller passes is copied before the call returns (paths, names, tables, the directory's
      struct), but for `context` and `widget`, which stay the caller's and must live until the matching
      unregister. A text that a function of a norvik_bank_directory returns stays the directory's and is
      copied at once by the caller.
   3. Text is zero-terminated bytes. Paths are the file system's; all other text is in the process's ANSI
      code page.
   4. Booleans are `int`, 0 for no and anything else for yes, but for the results of a host library's
      functions, which are uint8_t: only the low 8 bits of the register count.
   5. Null. A null path, name, procedure, directory or table (with a count above 0) makes no handle: the
      result is 0.
   6. Threads. Handles may be made, looked up and closed on any thread. What a call reaches in the host is
      called on the calling thread, with no lock of this library held.
   7. Failure. No function throws or sets errno on purpose; a call that fails leaves everything as it was.
      Memory that runs out makes no handle.
   8. The tag at the end of a comment says on which thread and when a function may be called. */
#ifndef NORVIK_PLATFORM_HOST_API_H
#define NORVIK_PLATFORM_HOST_API_H

#include <stddef.h>
#include <stdint.h>

#include "platform/export.h"

#ifdef __cplusplus
extern "C" {
#endif

/** The number of an object of this library; 0 is no handle. */
typedef uint32_t norvik_handle;

/* --- Modules: host libraries, whose functions are found by ordinal --- */

/** One function of a library inside the calling program. A null function counts as missing. */
typedef struct norvik_ordinal {
  uint32_t ordinal; /**< what a caller asks for */
  void* function;   /**< null: missing */
} norvik_ordinal;

/** Loads the shared object at `path` with RTLD_NOW and RTLD_LOCAL; its functions are the symbols
   `ordinal_<n>` (decimal, no leading zero) that it exports itself, not those of the objects it depends on.
   Every open has its own handle. 0 if it can't be loaded, and dlerror() on this thread then says why.
   [any thread, any time] */
NORVIK_EXPORT norvik_handle norvik_module_open(const char* path);

/** Makes a library of the `count` functions in `table`; where an ordinal stands twice the first counts. An
   empty table is a library without functions. [any thread, any time] */
NORVIK_EXPORT norvik_handle norvik_module_register(const norvik_ordinal* table, size_t count);

/** The function with that ordinal, or null if the library has none. The pointer is valid until the handle is
   closed. [any thread, any time] */
NORVIK_EXPORT void* norvik_module_function(norvik_handle module, uint32_t ordinal);

/** Ends the handle and unloads a library that was opened, unless other handles hold it.
   [any thread, once nothing calls its functions any more] */
NORVIK_EXPORT void norvik_module_close(norvik_handle module);

/* --- Windows: what takes messages --- */

/** Answers one message on the thread that sends it; it must not throw. */
typedef intptr_t (*norvik_window_procedure)(void* context, uint32_t message, uintptr_t wparam,
                                            intptr_t lparam);

/** Makes a window of a procedure. `widget` is the QWidget that the module's windows belong to, or null if
   there is none. [user-interface thread, any time] */
NORVIK_EXPORT norvik_handle norvik_window_register(norvik_window_procedure procedure, void* context,
                                                   void* widget);

/** Calls the window's procedure and returns its result; 0 if there is no such window.
   [user-interface thread, any time] */
NORVIK_EXPORT intptr_t norvik_window_send(norvik_handle window, uint32_t message, uintptr_t wparam,
                                          intptr_t lparam);

/** Ends the handle; a message that is being answered runs to its end.
   [user-interface thread; also from inside the window's procedure] */
NORVIK_EXPORT void norvik_window_unregister(norvik_handle window);

/* --- Named mutexes, owned by threads --- */

/** Result of norvik_mutex_wait: the calling thread owns the mutex. */
#define NORVIK_MUTEX_ACQUIRED 0u
/** Result of norvik_mutex_wait: it owns the mutex, whose owner before ended without releasing it. */
#define NORVIK_MUTEX_ABANDONED 0x80u
/** Result of norvik_mutex_wait: it owns nothing. */
#define NORVIK_MUTEX_FAILED 0xFFFFFFFFu

/** The mutex of that name, made without an owner if there is none; each call gives a handle of its own, and
   the mutex ends with its last handle. Names are compared byte by byte within this process. The host's loader
   creates "_BankInfoLoader_" and waits for it before InitModule, and holds it while it fills the directory.
   [any thread, any time] */
NORVIK_EXPORT norvik_handle norvik_mutex_create(const char* name);

/** The mutex of that name if it exists, else 0. [any thread, any time] */
NORVIK_EXPORT norvik_handle norvik_mutex_open(const char* name);

/** Waits without limit until the calling thread owns the mutex. A thread that owns it already gets it once
   more. The result is NORVIK_MUTEX_ACQUIRED; NORVIK_MUTEX_ABANDONED if it is owned now, but the owner before
   ended without releasing it; or NORVIK_MUTEX_FAILED, and nothing is owned. [any thread, any time] */
NORVIK_EXPORT uint32_t norvik_mutex_wait(norvik_handle mutex);

/** Gives back one of the caller's waits; the mutex is free when all are given back. 0 if the calling thread
   doesn't own it, else 1. [the thread that waited] */
NORVIK_EXPORT int norvik_mutex_release(norvik_handle mutex);

/** Ends the handle. It doesn't release the mutex. [any thread, any time] */
NORVIK_EXPORT void norvik_mutex_close(norvik_handle mutex);

/* --- The bank directory: four levels by look-up --- */

/** What the host's directory answers. `area` is characters 4 to 7 of a bank number, `type` characters 1 to 3,
   `number` the whole. The functions are called on the user-interface thread, and never while
   "_BankInfoLoader_" is held by another. */
typedef struct norvik_bank_directory {
  void* context; /**< handed to each of the functions */
  /** the top-level code at `index`, counted from 0 in byte order of the codes; null past the last */
  const char* (*top_code)(void* context, uint32_t index);
  /** whether the area stands under the top-level code */
  int (*has_area)(void* context, const char* top_code, const char* area);
  /** the bank's name; null where a level lacks its key */
  const char* (*bank_name)(void* context, const char* top_code, const char* area, const char* type,
                           const char* number);
} norvik_bank_directory;

/** Makes a handle, which the host keeps under "BANK_PDATA". 0 if one of the three functions is null.
   [any thread, any time] */
NORVIK_EXPORT norvik_handle norvik_bank_directory_register(const norvik_bank_directory* directory);

/** Ends the handle. [any thread, once the module was released] */
NORVIK_EXPORT void norvik_bank_directory_unregister(norvik_handle directory);

/* --- The module's five exports ---

   The types of the functions that NorvikQry.so exports as InitModule, MenuConfig, FreeBuff, CallFunc and
   Release. A failure leaves InitModule, MenuConfig and CallFunc as a C++ exception of corvane::TException. A
   Qt application object must live from InitModule to Release.

   On the user-interface thread each may be called at any moment: from a timer while a dialog of the module
   waits, from inside a function of a host library or of the bank directory that the module is calling, from a
   window procedure. Functions of the module then still stand on the stack below the call; they end one after
   the other without calling the host. */

/** Binds the host's libraries, found through the public information library; 0 when it returns at all. What
   an earlier call has started is released first. Fails with "CF30007" if the host calls Release from inside.
   [user-interface thread, before CallFunc] */
typedef uint32_t (*norvik_init_module)(norvik_handle public_information_module);

/** Writes the menu as an "iniplus" document with a terminator into *buffer; a null *buffer is set to memory
   that FreeBuff takes back, any other must be long enough.
   [user-interface thread, any time, as often as wanted] */
typedef void (*norvik_menu_config)(char** buffer);

/** Takes back a text of MenuConfig; null does nothing. The result means nothing.
   [user-interface thread, any time] */
typedef int32_t (*norvik_free_buff)(char* buffer);

/** Opens or brings back the screen of the item named by the field ItemName of `request`, the text of a row;
   another item does nothing. `reserved` isn't read. During an exchange with the bank the item opens once the
   exchange has ended, and a failure is then shown to the user. Fails with "CF30007" before InitModule has
   succeeded and once Release has begun. [user-interface thread] */
typedef void (*norvik_call_func)(const char* request, uint32_t reserved);

/** Stores the layouts, closes all windows of the module as if cancelled, and lets go of the host's libraries;
   also after an InitModule that failed. When it returns the host isn't called any more: a buffer that a host
   function gives out after Release was called from inside it stays the host's. [user-interface thread, at
   least once before unloading. While functions of the module stand below the call, the host unloads only
   after they have ended and its event loop has run, or after one more Release from there] */
typedef void (*norvik_release)(void);

#ifdef __cplusplus
}
#endif

#endif
