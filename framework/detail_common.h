// CDetailCommon: the business object that a detail dialog has of its own, beside its frame's.
#pragma once

#include <map>
#include <string>

#include "data/corvane.h"
#include "framework/m_detail_intf.h"

class CDetailCommon : public CMDetailIntf {
 protected:
  // Room for what a descendant keeps of its records.
  corvane::List records_;
  std::map<std::string, std::string> texts_;
};
