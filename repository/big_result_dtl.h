// TfrmBigResultDtl: the result of the large-value enquiry on a bill.
#pragma once

#include "repository/enquiry_form.h"

class TfrmBigResultDtl : public TEnquiryForm {
  Q_OBJECT

 public:
  explicit TfrmBigResultDtl(TComponent* owner) : TEnquiryForm(owner, norvik::kBigResultProfile) {}
};
