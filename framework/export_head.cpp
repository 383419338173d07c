#include "framework/export_head.h"

#include <algorithm>

#include "host/translate.h"

namespace norvik {

void CompleteExportHead(corvane::Row& head, const std::string& userName) {
  for (const char* mark : {"BEQRY", "ACCGRP"}) {
    if (!head.hasField(mark)) continue;
    head["QUERYUSER"] = g_pTranslate->Translate("UI50258");
    head["USERNAME"] = userName;
    if (std::string(mark) == "BEQRY") head["CONDITION"] = g_pTranslate->Translate("UI50260");
    head.removeField(mark);
  }
}

bool IsTextFileName(const std::string& fileName) {
  const std::size_t dot = fileName.rfind('.');
  if (dot == std::string::npos) return false;
  std::string extension = fileName.substr(dot + 1);
  std::transform(extension.begin(), extension.end(), extension.begin(),
                 [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c; });
  return extension == "TXT";
}

}  // namespace norvik
