// CMDetailIntf: the business object of a detail dialog.
#pragma once

#include "framework/m_interface.h"

class CMDetailIntf : public CMInterface {
 public:
  bool ReservedCheck1() override { return true; }
  bool ReservedCheck2() override { return true; }
  bool ReservedCheck3() override { return true; }
  virtual bool ReservedCheck5() { return true; }
};
