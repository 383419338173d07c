#include "fuzz/round_trip.h"

FUZZ_TEXT(text) {
  fuzz::RoundTrip<corvane::List>(text, {"ET10052", "ET10100"}, {"ET10053"});
}
