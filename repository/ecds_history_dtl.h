// TfrmECDSHistoryDtl: the enquiries and replies on a bill in ECDS.
#pragma once

#include "repository/enquiry_form.h"

class TfrmECDSHistoryDtl : public TEnquiryForm {
  Q_OBJECT

 public:
  explicit TfrmECDSHistoryDtl(TComponent* owner) : TEnquiryForm(owner, norvik::kHistoryProfile) {}
};
