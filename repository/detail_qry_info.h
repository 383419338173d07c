// TfrmDetailQryInfo: the record of a business event.
#pragma once

#include "repository/record_info_form.h"

class TfrmDetailQryInfo : public TRecordInfoForm {
  Q_OBJECT

 public:
  explicit TfrmDetailQryInfo(TComponent* owner) : TRecordInfoForm(owner, norvik::EventRecord()) {}
};
