// What ends the frames of a life of the module that the host has released while they still stood on the
// stack.
//
// Thrown where such a frame comes back from the host or from a loop, caught where the module was entered.
#pragma once

namespace norvik {

/// No failure: it derives from no exception class, so that no report shows it. A clause that catches
/// everything passes it on.
struct LifeEnded {};

}  // namespace norvik
