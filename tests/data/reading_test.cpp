// The reading of streams against a plain model of it: random trees of elements, well-formed but as often as
// not no message, have to leave the same content, and be refused at the same element.
#include <gtest/gtest.h>

#include <random>
#include <string>
#include <utility>
#include <vector>

#include "data/corvane.h"
#include "tests/data/keys.h"

namespace {

using namespace corvane;

// One object for each kind of element, filled at its start and stored at its end, as the level and the tag
// say.
class Model {
 public:
  bool Start(const std::string& name, const AttributeMap& attributes) {
    chars_.clear();
    switch (++level_) {
      case 1:
        return Reset(target, name, attributes);
      case 2:
        return name == "list"  ? Reset(list_, name, attributes)
               : name == "row" ? Reset(row_, name, attributes)
                               : Reset(field_, name, attributes);
      case 3:
        return name == "row" ? Reset(row_, name, attributes) : Reset(field_, name, attributes);
      case 4:
        return Reset(field_, name, attributes);
      default:
        return false;
    }
  }
  void Text(const std::string& piece) { chars_ += piece; }
  void End(const std::string& name) {
    field_.setValue(std::exchange(chars_, ""));
    switch (level_--) {
      case 1:
        return;
      case 2:
        return name == "list"  ? target.addList(list_)
               : name == "row" ? target.addRow(row_)
                               : target.addField(field_);
      case 3:
        return name == "row" ? list_.addRow(row_) : row_.addField(field_);
      default:
        return row_.addField(field_);
    }
  }

  CorvaneStream target;

 private:
  static bool Reset(Element& element, const std::string& name, const AttributeMap& attributes) {
    element.clear();
    element.setAttributes(attributes);
    element.setName(name);
    return true;
  }

  List list_;
  Row row_;
  Field field_;
  std::string chars_;
  int level_ = 0;
};

// A text and what the model makes of it.
class Sample {
 public:
  explicit Sample(unsigned seed) : random_(seed) { Put("s", 1); }

  std::string text;
  bool refused = false;
  Model model;

 private:
  bool Chance(unsigned percent) { return random_() % 100 < percent; }
  std::string Pick(const std::vector<std::string>& names) { return names[random_() % names.size()]; }

  std::string NameAt(int level, unsigned place) {
    if (level == 2) return Pick({"list", "list", "row", "row", "A", "B"});
    if (level == 3 && Chance(60)) return "row";
    if (Chance(85)) return std::string(1, static_cast<char>('A' + place));
    return Pick({"A", "B", "C", "D", "row", "list"});
  }
  AttributeMap AttributesOf(const std::string& name, int level) {
    AttributeMap attributes;
    if (name == "list" && level == 2 && Chance(95)) attributes["name"] = Pick({"L", "M"});
    if (Chance(5)) attributes["x"] = Pick({"1", "2"});
    return attributes;
  }
  void Text() {
    if (!Chance(40)) return;
    const std::string value = Pick({"1", "22", " ", "&", "\xC4\xE3"});
    text += value == "&" ? "&amp;" : value;
    if (!refused) model.Text(value);
  }
  template <class Event>
  void Run(Event event) {
    if (!refused) refused = KeyOf([&] { refused = !event(); }) != "none" || refused;
  }
  void Put(const std::string& name, int level) {
    const AttributeMap attributes = AttributesOf(name, level);
    text += "<" + name;
    for (const auto& [key, value] : attributes) text += " " + key + "='" + value + "'";
    text += ">";
    Run([&] { return model.Start(name, attributes); });
    Text();
    const unsigned children = level == 4 ? (Chance(1) ? 1 : 0) : level == 5 ? 0 : random_() % 4;
    for (unsigned place = 0; place < children; ++place) {
      if (level == 3 && name != "row" && !Chance(5)) continue;
      Put(NameAt(level + 1, place), level + 1);
      Text();
    }
    text += "</" + name + ">";
    Run([&] {
      model.End(name);
      return true;
    });
  }

  std::mt19937 random_;
};

void Show(const Element& element, std::string& out) {
  out += "<" + element.name();
  for (const auto& [key, value] : element.attributes()) out += " " + key + "=" + value;
  out += ">";
}

void Show(const Row& row, std::string& out) {
  Show(static_cast<const Element&>(row), out);
  for (const auto& [key, field] : row) {
    Show(static_cast<const Element&>(field), out += key);
    out += field.getValue() + ";";
  }
}

std::string Shown(const CorvaneStream& stream) {
  std::string out;
  Show(static_cast<const Element&>(stream), out);
  Show(stream.getFieldsRow(), out);
  for (int at = 0; at < stream.getRowCount(); ++at) Show(stream.getRow(at), out);
  for (auto list = stream.listsBegin(); list != stream.listsEnd(); ++list) {
    Show(static_cast<const Element&>(list->second), out += list->first);
    for (const Row& row : list->second) Show(row, out);
  }
  return out;
}

TEST(Reading, LeavesWhatThePlainModelLeaves) {
  int refused = 0;
  constexpr int kSamples = 5000;
  for (unsigned seed = 0; seed < kSamples; ++seed) {
    const Sample sample(seed);
    CorvaneStream stream;
    ASSERT_EQ(KeyOf([&] { stream.fromString(sample.text); }), sample.refused ? "ET10016" : "none")
        << sample.text;
    ASSERT_EQ(Shown(stream), Shown(sample.model.target)) << sample.text;
    refused += sample.refused ? 1 : 0;
  }
  EXPECT_GT(refused, kSamples / 10);
  EXPECT_LT(refused, kSamples * 9 / 10);
}

}  // namespace
