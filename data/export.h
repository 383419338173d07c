// The mark of what leaves the record library.
//
// The library is built with hidden visibility, so a class or a function that a caller links to bears
// CORVANE_EXPORT. What lies in data/detail/ never does: no symbol of it leaves.
#pragma once

/// Makes a class or a function of the library visible to whoever links to it.
#define CORVANE_EXPORT __attribute__((visibility("default")))
