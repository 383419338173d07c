#include "fuzz/round_trip.h"

FUZZ_TEXT(text) {
  fuzz::RoundTrip<corvane::CorvaneStream>(text, {"ET10016"}, {"ET10017"});
}
