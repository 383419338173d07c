// What leaves the built library of the contract.
#include <gtest/gtest.h>

#include <set>
#include <string>

#include "platform/host_api.h"
#include "tests/support/exported_names.h"

namespace {

TEST(Exports, AreTheContractAndWhatTheOtherLibrariesUse) {
  const std::set<std::string> expected = {
      "norvik_module_open",
      "norvik_module_register",
      "norvik_module_function",
      "norvik_module_close",
      "norvik_window_register",
      "norvik_window_send",
      "norvik_window_unregister",
      "norvik_mutex_create",
      "norvik_mutex_open",
      "norvik_mutex_wait",
      "norvik_mutex_release",
      "norvik_mutex_close",
      "norvik_bank_directory_register",
      "norvik_bank_directory_unregister",
      "norvik::AnsiBounds",
      "norvik::AnsiCodePage",
      "norvik::AnsiFromUtf8",
      "norvik::AppendAnsiFromUtf8",
      "norvik::AsciiRun",
      "norvik::CharacterLength",
      "norvik::DecodeToUtf8",
      "norvik::EndOfValidRun",
      "norvik::FindBankDirectory",
      "norvik::IsLeadByte",
      "norvik::IsWindow",
      "norvik::IsXmlName",
      "norvik::Narrow",
      "norvik::PreferLargePages",
      "norvik::ReadXml",
      "norvik::SetAnsiCodePage",
      "norvik::TickCount",
      "norvik::Utf8FromAnsi",
      "norvik::Widen",
      "norvik::WindowWidget",
      "norvik::XmlAttributes",
      "norvik::XmlEvents",
  };
  EXPECT_EQ(ExportedNames(&norvik_module_open), expected);
}

}  // namespace
