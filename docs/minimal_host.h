/* The smallest host that NorvikQry runs in: its six libraries and its main window, made inside the program.
   A program of yours starts from minimal_host.c; minimal_host_main.cpp shows the window around it. */
#ifndef NORVIK_DOCS_MINIMAL_HOST_H
#define NORVIK_DOCS_MINIMAL_HOST_H

#include "platform/host_api.h"

#ifdef __cplusplus
extern "C" {
#endif

/* Makes the libraries and the window; `widget` is the QWidget that the module's windows belong to, or null.
   The result is the handle of the public information library, InitModule's argument. Called once. */
norvik_handle minimal_host_open(void* widget);

#ifdef __cplusplus
}
#endif

#endif
