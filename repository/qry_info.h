// TfrmQryInfo: the record of a bill in custody.
#pragma once

#include "repository/record_info_form.h"

class TfrmQryInfo : public TRecordInfoForm {
  Q_OBJECT

 public:
  explicit TfrmQryInfo(TComponent* owner) : TRecordInfoForm(owner, norvik::BillRecord()) {}
};
