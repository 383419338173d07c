#include <utility>

#include "bench/peers.h"
#include "data/corvane.h"

namespace bench {
namespace {

class StreamModel : public Model {
 public:
  explicit StreamModel(const std::string& text) : stream(text) {}
  Sum ReadAll() override {
    Sum sum;
    for (const corvane::Row& row : std::as_const(stream.getList("resultList")))
      for (const char* column : kColumns) sum.Add(row.getValue(column));
    return sum;
  }
  corvane::CorvaneStream stream;
};

// Takes a reference to every value, which is what a caller pays who means to change them all.
class ReferenceModel : public StreamModel {
 public:
  using StreamModel::StreamModel;
  Sum ReadAll() override {
    Sum sum;
    for (corvane::Row& row : stream.getList("resultList"))
      for (const char* column : kColumns) sum.Add(row[column]);
    return sum;
  }
};

std::string Write(Model& rows) {
  return dynamic_cast<StreamModel&>(rows).stream.toString();
}

}  // namespace

Peer CorvanePeer() {
  const auto read = [](const std::string& text) { return std::make_unique<StreamModel>(text); };
  return {"corvane", read, read, Write};
}

Peer CorvaneReferencePeer() {
  const auto read = [](const std::string& text) { return std::make_unique<ReferenceModel>(text); };
  return {"corvane, row[key]", read, nullptr, nullptr};
}

}  // namespace bench
