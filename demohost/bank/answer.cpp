#include "demohost/bank/answer.h"

#include "platform/code_page.h"

namespace demohost {

corvane::List ResultList(Statement& statement) {
  corvane::List list;
  list.setAttribute("name", "resultList");
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

corvane::CorvaneStream Answer(corvane::List& list) {
  corvane::CorvaneStream answer;
  answer.setEncoding("GBK");
  answer.addField(corvane::Field("TOTALNM", std::to_string(list.size())));
  answer.addList(list);
  return answer;
}

}  // namespace demohost
