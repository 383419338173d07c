// TfrmAppQryInfo: the record of an application.
#pragma once

#include "repository/record_info_form.h"

class TfrmAppQryInfo : public TRecordInfoForm {
  Q_OBJECT

 public:
  explicit TfrmAppQryInfo(TComponent* owner) : TRecordInfoForm(owner, norvik::ApplicationRecord()) {}
};
