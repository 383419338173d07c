#include "fuzz/round_trip.h"

FUZZ_TEXT(text) {
  fuzz::RoundTrip<corvane::Iniplus>(text, {"ET10049"}, {"ET10051"});
}
