#include "fuzz/round_trip.h"

FUZZ_TEXT(text) {
  fuzz::RoundTrip<corvane::Ini>(text, {"ET10046"}, {"ET10048"});
}
