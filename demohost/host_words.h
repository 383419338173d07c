// The words of the host's own windows and reports, in three languages. The texts of the module's keys are
// in texts.h.
#pragma once

#include <string_view>

namespace demohost {

/// What the host's own windows and reports say, by its use.
enum class HostWord {
  kTitle,
  kDemonstration,
  kBusiness,
  kSettings,
  kLanguage,
  kFont,
  kStyle,
  kWindows,
  kHelp,
  kAbout,
  kAboutText,
  kExit,
  kBankDay,
  kOpenForms,
  kNoForms,
  kSaved,
  kShortcutMade,
  kShortcutFailed,
  kModuleFailed,
  kPrintSettings,
  kPaper,
  kLandscape,
  kReportCount,
  kReportMade,
  kReportCondition,
  kPickItem,
  kCount,
};

/// The word in UTF-8 in the language of that name, one of kLanguages; in Simplified Chinese for any other
/// name.
std::string_view Word(HostWord word, std::string_view language);

}  // namespace demohost
