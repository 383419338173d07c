#include "bench/answer.h"

#include <random>

#include "platform/code_page.h"

namespace bench {

const std::array<const char*, 31> kColumns = {
    "ACCPACC", "ACCPBNK", "ACCPNAM", "AGTBHNM", "AGTSTAT", "APPLYNO", "BANKRMK", "BATCHNO",
    "BILLAMT", "BILLNUM", "BILLSID", "BILLTYP", "BSNFLOW", "CURRNCY", "CUSTACC", "CUSTNAM",
    "DRAWACC", "DRAWBNK", "DRAWNAM", "DSBKBNM", "DUEDATE", "HASIMPN", "ISSDATE", "PAYEACC",
    "PAYEBNK", "PAYENAM", "PTENDNM", "SAVEDTE", "TENDFLG", "UPDTIME", "YESORNO"};

namespace {

using Random = std::mt19937;

std::string Digits(Random& random, std::size_t count) {
  std::string text;
  for (std::size_t at = 0; at < count; ++at) text += static_cast<char>('0' + random() % 10);
  return text;
}

std::string Chinese(Random& random, std::size_t characters) {
  static const std::u16string kCharacters =
      u"北京上海广州深圳杭州南京天津重庆武汉成都有限责任公司股份贸易实业集团银行分支行电子科技商务钢铁纺织化"
      u"工机械建设第一二三"
      u"东方华夏中信民生招商浦发兴业光大";
  std::u16string text;
  for (std::size_t at = 0; at < characters; ++at) text += kCharacters[random() % kCharacters.size()];
  return norvik::Narrow(text);
}

std::string Value(Random& random, std::size_t column) {
  switch (column % 12) {
    case 0:
    case 4:
    case 9:
      return {};
    case 1:
    case 5:
      return Chinese(random, 8 + random() % 8);
    case 2:
    case 10:
      return Chinese(random, 2 + random() % 5);
    case 3:
      return Digits(random, 8) + "." + Digits(random, 2);
    case 6:
      return Digits(random, 19);
    case 7:
      return Digits(random, 4) + "&" + Digits(random, 2);
    default:
      return Digits(random, 8);
  }
}

}  // namespace

std::string MakeAnswer(std::size_t rows) {
  Random random(20240229);
  std::string text = "<?xml version=\"1.0\" encoding=\"GBK\"?><stream><QURYNUM>" + std::to_string(rows) +
                     "</QURYNUM><list name=\"resultList\">";
  for (std::size_t row = 0; row < rows; ++row) {
    text += "<row>";
    for (std::size_t column = 0; column < kColumns.size(); ++column) {
      const std::string name = kColumns[column];
      std::string value = Value(random, column);
      if (const std::size_t at = value.find('&'); at != std::string::npos) value.replace(at, 1, "&amp;");
      text += value.empty() ? "<" + name + "/>" : "<" + name + ">" + value + "</" + name + ">";
    }
    text += "</row>";
  }
  return text + "</list></stream>";
}

}  // namespace bench
