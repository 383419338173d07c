// TfrmECDSignDtl: the registrations of a bill in ECDS.
#pragma once

#include "repository/enquiry_form.h"

class TfrmECDSignDtl : public TEnquiryForm {
  Q_OBJECT

 public:
  explicit TfrmECDSignDtl(TComponent* owner) : TEnquiryForm(owner, norvik::kSignProfile) {}
};
