#include "demohost/bank/names.h"

#include <cstdio>

namespace demohost::names {
namespace {

constexpr City kCities[] = {
    {"1000", "北京"}, {"1100", "天津"}, {"1210", "石家庄"}, {"1610", "太原"}, {"2210", "沈阳"},
    {"2220", "大连"}, {"2410", "长春"}, {"2610", "哈尔滨"}, {"2900", "上海"}, {"3010", "南京"},
    {"3050", "苏州"}, {"3310", "杭州"}, {"3320", "宁波"},   {"3610", "合肥"}, {"3910", "福州"},
    {"3930", "厦门"}, {"4210", "南昌"}, {"4510", "济南"},   {"4520", "青岛"}, {"4910", "郑州"},
    {"5210", "武汉"}, {"5510", "长沙"}, {"5810", "广州"},   {"5840", "深圳"}, {"6110", "南宁"},
    {"6510", "成都"}, {"6530", "重庆"}, {"7010", "贵阳"},   {"7310", "昆明"}, {"7910", "西安"},
};

constexpr AcceptingBank kAcceptingBanks[] = {
    {"911", "东岳商业银行"}, {"912", "江南实业银行"}, {"913", "北辰银行"},     {"914", "海川银行"},
    {"915", "长风信用银行"}, {"916", "金穗农商银行"}, {"917", "云岭城市银行"}, {"918", "远航进出口银行"},
};

constexpr std::string_view kFirmWords[] = {
    "恒达", "瑞丰", "鸿运", "金桥", "东升", "华泰", "新纪元", "联创", "宏图", "博远", "天工", "永信", "海纳",
    "晨光", "嘉禾", "银河", "盛世", "万通", "长青", "国泽",   "立信", "春华", "卓越", "同辉", "安泰", "启明",
};

constexpr std::string_view kTrades[] = {
    "电子",     "机械制造", "纺织",     "化工",     "钢铁贸易", "食品",     "医药",
    "建材",     "汽车配件", "物流",     "造纸",     "家具",     "光电科技", "有色金属",
    "电力设备", "农业发展", "船舶工程", "塑料制品", "仪器仪表", "国际贸易",
};

constexpr std::string_view kDistricts[] = {
    "人民路18号", "中山东路206号", "建设大街77号", "解放北路1059号", "高新区科技三路9号", "滨江道321号",
};

constexpr std::string_view kSurnames[] = {"王", "李", "张", "刘", "陈", "杨",
                                          "赵", "黄", "周", "吴", "徐", "孙"};
constexpr std::string_view kGivenNames[] = {"伟", "芳",   "娜", "建国", "秀英", "敏",
                                            "静", "志强", "磊", "丽",   "晓明", "文涛"};

constexpr std::string_view kCustomerRemarks[] = {
    "", "", "", "到期托收", "货款", "二季度回款", "请按时提示付款", "背书\\转让|待定"};
constexpr std::string_view kBankRemarks[] = {
    "", "", "", "票面完好", "已电话核实", "印章不清,已补函", "<复核>通过 & 入库"};

}  // namespace

std::span<const City> Cities() {
  return kCities;
}
std::span<const AcceptingBank> AcceptingBanks() {
  return kAcceptingBanks;
}
std::span<const std::string_view> FirmWords() {
  return kFirmWords;
}
std::span<const std::string_view> Trades() {
  return kTrades;
}
std::span<const std::string_view> Districts() {
  return kDistricts;
}
std::span<const std::string_view> Surnames() {
  return kSurnames;
}
std::span<const std::string_view> GivenNames() {
  return kGivenNames;
}
std::span<const std::string_view> CustomerRemarks() {
  return kCustomerRemarks;
}
std::span<const std::string_view> BankRemarks() {
  return kBankRemarks;
}

std::string InterbankNumber(std::string_view type, std::string_view area, unsigned serial) {
  char digits[8];
  std::snprintf(digits, sizeof digits, "%04u", serial % 10000);
  std::string number = std::string(type) + std::string(area) + digits;
  // The check digit makes the digits, weighted 2 and 1 in turn, add up to a multiple of ten.
  unsigned sum = 0;
  for (std::size_t at = 0; at < number.size(); ++at) {
    sum += static_cast<unsigned>(number[at] - '0') * (at % 2 == 0 ? 2 : 1);
  }
  number += static_cast<char>('0' + (10 - sum % 10) % 10);
  return number;
}

}  // namespace demohost::names
