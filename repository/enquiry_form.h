// The answer to an enquiry on one bill: a head with the bill's data and a list of records. The screen makes
// the exchange; the dialog only shows the result. The three dialogs differ in their profiles alone.
//
// The dialogs show, sum and export; they don't print or audit.
#pragma once

#include <memory>
#include <span>
#include <vector>

#include "framework/business/m_detail_intf.h"
#include "framework/frames/detail_form.h"
#include "repository/caption_value.h"

class TbsSkinPanel;

namespace norvik {

// How a row of the head gets its caption and value.
enum class HeadRule {
  kField,       // caption by its key, value as the answer has it
  kBillType,    // value: the text of the bill's type
  kByBillType,  // caption: by the bill's type
};

struct HeadRow {
  const char* label;          // name of the caption; the value's is the same with "Val" behind it
  const char* captionKey;     // empty: the design caption stays
  const char* designCaption;  // UTF-8
  const char* field;          // of the answer
  HeadRule rule = HeadRule::kField;
};

// What a dialog is.
struct EnquiryProfile {
  const char* captionKey;
  std::span<const HeadRow> head;
};

extern const EnquiryProfile kHistoryProfile;
extern const EnquiryProfile kSignProfile;
extern const EnquiryProfile kBigResultProfile;

}  // namespace norvik

class TEnquiryForm : public TDetailForm {
  Q_OBJECT

 public:
  void BuildControls() override;
  void SetCaptions() override;
  void Construct() override;
  void ResetForm() override;
  void FormDestroy() override;

  // Takes the fields of the answer; before the dialog is shown. A field that they lack shows as empty.
  void SetRecord(corvane::Row record);

  TbsSkinPanel* m_pnlNormal = nullptr;

 protected:
  TEnquiryForm(TComponent* owner, const norvik::EnquiryProfile& profile);
  ~TEnquiryForm() override;

 private:
  void FillHead();

  const norvik::EnquiryProfile& profile_;
  std::vector<norvik::CaptionValue> head_;  // as the rows of the profile
  std::unique_ptr<CDetailCommon> m_pCommon;
  corvane::Row m_record;
};

/// The enquiries and replies on a bill in ECDS.
class TfrmECDSHistoryDtl : public TEnquiryForm {
  Q_OBJECT

 public:
  explicit TfrmECDSHistoryDtl(TComponent* owner) : TEnquiryForm(owner, norvik::kHistoryProfile) {}
};

/// The registrations of a bill in ECDS.
class TfrmECDSignDtl : public TEnquiryForm {
  Q_OBJECT

 public:
  explicit TfrmECDSignDtl(TComponent* owner) : TEnquiryForm(owner, norvik::kSignProfile) {}
};

/// The result of the large-value enquiry on a bill.
class TfrmBigResultDtl : public TEnquiryForm {
  Q_OBJECT

 public:
  explicit TfrmBigResultDtl(TComponent* owner) : TEnquiryForm(owner, norvik::kBigResultProfile) {}
};
