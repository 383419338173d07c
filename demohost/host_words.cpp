#include "demohost/host_words.h"

#include <array>

#include "demohost/texts.h"

namespace demohost {
namespace {

// In the order of HostWord; in each row in the order of kLanguages.
constexpr std::array<std::array<std::string_view, 3>, static_cast<std::size_t>(HostWord::kCount)> kWords = {{
    {"企业网银客户端", "企業網銀用戶端", "Corporate banking client"},
    {"演示系统 非真实银行", "演示系統 非真實銀行", "DEMONSTRATION - not a real bank"},
    {"业务", "業務", "Business"},
    {"设置", "設定", "Settings"},
    {"语言", "語言", "Language"},
    {"字体...", "字體...", "Font..."},
    {"样式", "樣式", "Style"},
    {"窗口", "視窗", "Windows"},
    {"帮助", "說明", "Help"},
    {"关于", "關於", "About"},
    {"这是一个演示用的客户端。所有客户、账户、票据与银行均为虚构，不连接任何真实银行。",
     "這是一個演示用的用戶端。所有客戶、帳戶、票據與銀行均為虛構，不連接任何真實銀行。",
     "This client is a demonstration. All customers, accounts, bills and banks are invented; no real bank is "
     "connected."},
    {"退出", "結束", "Exit"},
    {"银行日期", "銀行日期", "Bank date"},
    {"打开的窗口", "開啟的視窗", "Open windows"},
    {"没有打开的窗口", "沒有開啟的視窗", "No window is open"},
    {"文件已生成", "檔案已產生", "File made"},
    {"桌面快捷方式已创建", "桌面捷徑已建立", "Desktop shortcut made"},
    {"桌面快捷方式创建失败", "桌面捷徑建立失敗", "The desktop shortcut could not be made"},
    {"业务模块失败", "業務模組失敗", "The business module failed"},
    {"打印设置", "列印設定", "Print settings"},
    {"纸张", "紙張", "Paper"},
    {"横向", "橫向", "Landscape"},
    {"记录数", "記錄數", "Records"},
    {"打印时间", "列印時間", "Printed"},
    {"查询条件", "查詢條件", "Conditions"},
    {"请从“业务”菜单中选择一项业务。", "請從「業務」功能表選擇一項業務。",
     "Pick a business from the menu \"Business\"."},
}};

}  // namespace

std::string_view Word(HostWord word, std::string_view language) {
  const auto& row = kWords[static_cast<std::size_t>(word)];
  for (std::size_t column = 0; column < kLanguages.size(); ++column) {
    if (kLanguages[column].name == language) return row[column];
  }
  return row[0];
}

}  // namespace demohost
