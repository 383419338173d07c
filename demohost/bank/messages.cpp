#include "demohost/bank/messages.h"

#include "demohost/refusals.h"
#include "platform/code_page.h"

namespace demohost {
namespace {

template <class Pairs>
Fields Utf8Fields(const Pairs& pairs) {
  Fields fields;
  for (const auto& [name, field] : pairs) {
    fields[norvik::Utf8FromAnsi(name)] = norvik::Utf8FromAnsi(field.getValue());
  }
  return fields;
}

}  // namespace

Fields FieldsOf(const corvane::CorvaneStream& request) {
  return Utf8Fields(request.getFields());
}

Fields FieldsOf(const corvane::Row& row) {
  return Utf8Fields(row);
}

const std::string& Required(const Fields& fields, std::string_view name) {
  const auto found = fields.find(std::string(name));
  if (found == fields.end()) throw Refused(refusal::kMissingField, std::string(name));
  return found->second;
}

corvane::Row RowOf(std::initializer_list<std::pair<const char*, std::string>> fields) {
  corvane::Row row;
  for (const auto& [name, value] : fields) row[name] = norvik::AnsiFromUtf8(value);
  return row;
}

corvane::List EmptyResult() {
  corvane::List list;
  list.setAttribute("name", "resultList");
  return list;
}

corvane::List ResultList(Statement& statement) {
  corvane::List list = EmptyResult();
  std::vector<std::string> names;
  names.reserve(static_cast<std::size_t>(statement.ColumnCount()));
  for (int column = 0; column < statement.ColumnCount(); ++column)
    names.push_back(statement.ColumnName(column));
  while (statement.Step()) {
    corvane::Row row;
    for (std::size_t column = 0; column < names.size(); ++column) {
      norvik::AppendAnsiFromUtf8(statement.Text(static_cast<int>(column)), row[names[column]]);
    }
    list.addRow(std::move(row));
  }
  return list;
}

corvane::CorvaneStream EmptyAnswer() {
  corvane::CorvaneStream answer;
  answer.setEncoding("GBK");
  return answer;
}

corvane::CorvaneStream Answer(corvane::List list) {
  corvane::CorvaneStream answer = EmptyAnswer();
  answer.addField(corvane::Field("TOTALNM", std::to_string(list.size())));
  answer.addList(std::move(list));
  return answer;
}

}  // namespace demohost
