/* A host in C, compiled as C11: what the tests of platform/host_api.h run to see that the header is enough
   for one. */
#pragma once

#include "platform/host_api.h"

#ifdef __cplusplus
extern "C" {
#endif

/* A host written in C: a library of one function, a window, a directory of one bank, each registered and
   asked through the header. 0, or the number of the first step that went wrong. */
int c_host_run(void);

#ifdef __cplusplus
}
#endif
