#include "demohost/bank/seed.h"

#include <algorithm>
#include <cstdio>

#include "demohost/bank/schema.h"
#include "demohost/bank/seed_orders.h"
#include "demohost/bank/seed_records.h"

namespace demohost {
namespace {

// 31 bits that differ, as good as surely, from plan to plan (FNV-1a).
std::int32_t Fingerprint(const BankPlan& plan) {
  std::uint32_t hash = 2166136261u;
  const auto mix = [&hash](std::string_view text) {
    for (const char c : text) hash = (hash ^ static_cast<unsigned char>(c)) * 16777619u;
    hash = (hash ^ 0xFFu) * 16777619u;
  };
  mix(std::to_string(kSchemaVersion));
  mix(std::to_string(plan.bills));
  mix(DayText(plan.today));
  for (const auto& [dictionary, codes] : plan.codes) {
    mix(dictionary);
    for (const std::string& code : codes) mix(code);
  }
  return static_cast<std::int32_t>(hash & 0x7FFFFFFFu) | 1;
}

bool IsMadeFrom(const std::filesystem::path& file, std::int32_t fingerprint) {
  if (!std::filesystem::exists(file)) return false;
  try {
    return Database(file, false).Version() == fingerprint;
  } catch (const DatabaseError&) {
    return false;
  }
}

void Make(const std::filesystem::path& file, const BankPlan& plan, std::int32_t fingerprint) {
  std::filesystem::remove(file);
  Database database(file, true);
  // A bank that is half made is thrown away, so nothing is lost by not waiting for the disk.
  database.Run("PRAGMA journal_mode = OFF; PRAGMA synchronous = OFF");
  database.Run("BEGIN");
  database.Run(SchemaSql());
  FillBank(database, plan);
  FillEnquiries(database, plan);
  FillOrders(database, plan);
  database.Run(
      "CREATE INDEX bill_account ON bill (CUSTACC); CREATE INDEX application_bill ON application (BILL);"
      "CREATE INDEX event_bill ON event (BILL); CREATE INDEX enquiry_bill ON enquiry (BILL);"
      "CREATE INDEX registration_bill ON registration (BILL); CREATE INDEX order_application ON orders "
      "(APPLICATION)");
  database.SetVersion(fingerprint);
  database.Run("COMMIT");
}

}  // namespace

Database OpenBank(const std::filesystem::path& file, const BankPlan& plan) {
  const std::int32_t fingerprint = Fingerprint(plan);
  if (!IsMadeFrom(file, fingerprint)) {
    std::filesystem::create_directories(file.parent_path());
    std::filesystem::path beside = file;
    beside += ".new";
    Make(beside, plan, fingerprint);
    std::filesystem::rename(beside, file);
  }
  return Database(file, false);
}

}  // namespace demohost
