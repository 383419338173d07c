// The answer to an enquiry on one bill: a head with the bill's data and a list of records. The repository
// screen makes the exchange and opens the dialog, which only shows the result. The three dialogs differ in
// their profiles alone.
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

/// How a row of the head finds its caption and value.
enum class HeadRule {
  kField,       ///< caption by its key, value as the answer has it
  kBillType,    ///< value: the text of the bill's type
  kByBillType,  ///< caption: by the bill's type
};

/// A row of the head.
struct HeadRow {
  const char* label;          ///< name of the caption; the value's is the same + "Val"
  const char* captionKey;     ///< empty: the design caption stays
  const char* designCaption;  ///< UTF-8
  const char* field;          ///< of the answer
  HeadRule rule = HeadRule::kField;
};

/// A dialog's caption and head.
struct EnquiryProfile {
  const char* captionKey;
  std::span<const HeadRow> head;
};

/// The profiles of the three dialogs.
extern const EnquiryProfile kHistoryProfile;
extern const EnquiryProfile kSignProfile;
extern const EnquiryProfile kBigResultProfile;

}  // namespace norvik

/// The base of the three dialogs.
class TEnquiryForm : public TDetailForm {
  Q_OBJECT

 public:
  void BuildControls() override;
  void SetCaptions() override;
  void Construct() override;
  void ResetForm() override;
  void FormDestroy() override;

  /// Sets the fields of the answer; before the dialog is shown. A field that they lack shows as empty.
  void SetRecord(corvane::Row record);

  TbsSkinPanel* m_pnlNormal = nullptr;

 protected:
  TEnquiryForm(TComponent* owner, const norvik::EnquiryProfile& profile);
  ~TEnquiryForm() override;

 private:
  void FillHead();

  const norvik::EnquiryProfile& profile_;
  std::vector<norvik::CaptionValue> head_;  // in the order of the profile's rows
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
