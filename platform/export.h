/* The mark of what leaves libnorvik_platform.so, which is built with hidden visibility: the contract of
   host_api.h, and what the record library and the module use of this folder. C11 and C++. */
#ifndef NORVIK_PLATFORM_EXPORT_H
#define NORVIK_PLATFORM_EXPORT_H

/* Makes a function or a class visible to whoever links to the library. */
#define NORVIK_EXPORT __attribute__((visibility("default")))

#endif
