#include "demohost/bank/enquiries.h"

#include "demohost/bank/amount.h"
#include "demohost/bank/messages.h"
#include "demohost/refusals.h"
#include "platform/code_page.h"

namespace demohost {
namespace {

// The bill's data as an enquiry's answer shows them.
constexpr const char* kHeadColumns =
    "b.ID, b.BILLNUM, b.BILLTYP, b.ACCPBNM || b.ACPNM AS ACCPBNM, b.ISSDATE, b.DUEDATE, ";

constexpr const char* kEnquiryColumns =
    "e.QURYDAT, e.QURYBNO, e.QURYBNM, e.QURYCNT, e.RPLYDAT, e.RPLYBNO, e.RPLYBNM, e.RPLYCNT, e.QURYRST, "
    "b.QURYNUM";

// A bill of one account, named by one more column.
struct BillName {
  const char* column;
  std::string value;
};

// A number that names a bill is never empty, though some bills lack it.
std::int64_t AddHead(Database& database, const std::string& account, const std::vector<BillName>& names,
                     corvane::CorvaneStream& answer) {
  std::string sql =
      std::string("SELECT ") + kHeadColumns + kAmountSql + " AS PMMONEY FROM bill b WHERE b.CUSTACC = ?";
  for (const BillName& name : names) {
    if (name.value.empty()) throw Refused(refusal::kUnknownBill, name.column);
    sql += std::string(" AND b.") + name.column + " = ?";
  }
  Statement bill = database.Prepare(sql);
  int parameter = 0;
  bill.Bind(++parameter, account);
  for (const BillName& name : names) bill.Bind(++parameter, name.value);
  if (!bill.Step()) throw Refused(refusal::kUnknownBill, names.front().value);
  for (int column = 1; column < bill.ColumnCount(); ++column) {
    answer.addField(
        corvane::Field(bill.ColumnName(column), norvik::AnsiFromUtf8(std::string(bill.Text(column)))));
  }
  return bill.Number(0);
}

// The bill's data and what `records` (with the bill's number as its parameter) finds about it.
corvane::CorvaneStream Enquire(Database& database, const std::string& account,
                               const std::vector<BillName>& names, const std::string& records) {
  corvane::CorvaneStream head;
  const std::int64_t bill = AddHead(database, account, names, head);
  Statement statement = database.Prepare(records);
  statement.Bind(1, bill);
  corvane::CorvaneStream answer = Answer(ResultList(statement));
  answer.addFields(head.getFieldsRow());
  return answer;
}

corvane::CorvaneStream EnquireEcds(Database& database, const corvane::CorvaneStream& request,
                                   const std::string& records) {
  const Fields fields = FieldsOf(request);
  const std::string& kind = Required(fields, "QURYTYP");
  if (kind != "1" && kind != "2") throw Refused(refusal::kUnknownCode, "QURYTYP");
  std::vector<BillName> names;
  for (const char* column : {"BILLSID", "QURYNUM"}) {
    const std::string& value = Required(fields, column);
    const bool decides = (kind == "1") == (std::string_view(column) == "BILLSID");
    // The other number may be empty; where it isn't, it must be of the same bill.
    if (decides || !value.empty()) names.push_back({column, value});
  }
  return Enquire(database, Required(fields, "CUSTACC"), names, records);
}

std::string EnquiriesOf(const char* system) {
  return std::string("SELECT ") + kEnquiryColumns +
         " FROM enquiry e JOIN bill b ON b.ID = e.BILL WHERE e.BILL = ? AND e.SYSTEM = '" + system +
         "' ORDER BY e.ID";
}

}  // namespace

corvane::CorvaneStream EcdsHistory(Database& database, const corvane::CorvaneStream& request) {
  return EnquireEcds(database, request, EnquiriesOf("ECDS"));
}

corvane::CorvaneStream EcdsRegistration(Database& database, const corvane::CorvaneStream& request) {
  return EnquireEcds(
      database, request,
      std::string("SELECT r.INFOTYP, r.REGIDAT, r.REGINAM, r.REGIBNO, r.REGIBNM, r.REGICNT, ") + kAmountSql +
          " AS PAYAMT, b.CRYTYPE, b.QURYNUM FROM registration r JOIN bill b ON b.ID = r.BILL WHERE r.BILL = ? ORDER BY r.ID");
}

corvane::CorvaneStream LargeValueResult(Database& database, const corvane::CorvaneStream& request) {
  const Fields fields = FieldsOf(request);
  return Enquire(database, Required(fields, "CUSTACC"),
                 {{"BILLSID", Required(fields, "BILLSID")}, {"BILLNUM", Required(fields, "BILLNUM")}},
                 EnquiriesOf("HVPS"));
}

}  // namespace demohost
