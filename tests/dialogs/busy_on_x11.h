// One exchange under the busy form on a real X display, watched by another client of the display. The test of
// the busy form starts its own program again to play it.
#pragma once

/// Argument with which the test program plays one exchange on the X display that it was started on.
inline constexpr const char* kBusyOnX11 = "--busy-on-x11";

/// Plays the exchange and prints what another client of the display saw of it; 0 when it could be played.
int RunBusyOnX11();
