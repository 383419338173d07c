#include "fuzz/round_trip.h"

FUZZ_TEXT(text) {
  fuzz::RoundTrip<corvane::Row>(text, {"ET10057"}, {"ET10058"});
  fuzz::RoundTrip<corvane::Field>(text, {"ET10044"}, {"ET10045"});
}
