#include "dialogs/audit_foot_form.h"

#include <utility>

#include "data/string_functions.h"
#include "dialogs/audit_foot.h"
#include "dialogs/font_fit.h"
#include "dialogs/memo_break.h"
#include "dialogs/message_keys.h"
#include "dialogs/messages.h"
#include "dialogs/view_bsn_flow.h"
#include "framework/business/m_query_intf.h"
#include "framework/columns/column_table.h"
#include "host/pub_info.h"
#include "toolkit/application.h"
#include "toolkit/conversion.h"
#include "toolkit/decimal_text.h"
#include "toolkit/layout.h"

namespace {

constexpr int kWidth = 860;
constexpr int kHeight = 520;
constexpr int kMargin = 12;
constexpr int kGap = 8;
constexpr int kRowGap = 4;                    // so that the form fits a low screen with a large font
constexpr int kPurposeWidth = 468;            // pixels, at the smallest font
constexpr int kPurposeCharacters = 39;        // full-width ones in a line, 78 bytes
constexpr std::size_t kMaxShownBytes = 4000;  // of a value: more than a screen has room for

constexpr const char* kFlowTransaction = "COMQRYFW";
constexpr const char* kFirstLevel = "PSTLEVEL0";
constexpr const char* kAmountUnit = "UI42802";

}  // namespace

// A caption and the value beside it: a field and, in some rows, a text and a second field after it.
struct TfrmEBillAuditFoot::Line {
  TLabel* TfrmEBillAuditFoot::*caption;
  const char* captionName;
  const char* captionKey;
  TLabel* TfrmEBillAuditFoot::*value;
  const char* valueName;
  const char* field;
  const char* join = "";
  const char* secondField = "";
};

using TFoot = TfrmEBillAuditFoot;
const TfrmEBillAuditFoot::Line TfrmEBillAuditFoot::kLines[] = {
    {&TFoot::m_lbBsn, "m_lbBsn", "UI42780", &TFoot::m_lbBsnValue, "m_lbBsnValue", "BSNName"},
    {&TFoot::m_lbOpor, "m_lbOpor", "UI42781", &TFoot::m_lbOporName, "m_lbOporName", "OPRNM"},
    {&TFoot::m_lbOporTime, "m_lbOporTime", "UI42782", &TFoot::m_lbOponTimeValue, "m_lbOponTimeValue",
     "SMTDATE", " ", "SMTTIME"},
    {&TFoot::m_lbPay, "m_lbPay", "UI42783", &TFoot::m_lbPayAcc, "m_lbPayAcc", "ACCPACC", "-", "ACCPNAM"},
    {&TFoot::m_lbRcv, "m_lbRcv", "UI42784", &TFoot::m_lbRcvAcc, "m_lbRcvAcc", "PYEEACC", "-", "PYEENAM"},
    {&TFoot::m_lbPayAmt, "m_lbPayAmt", "UI42785", &TFoot::m_lbAmtValue, "m_lbAmtValue", "PAYAMT"},
    {&TFoot::m_lbCryType, "m_lbCryType", "UI42786", &TFoot::m_lbCryValue, "m_lbCryValue", "CRYTYPE"},
    {&TFoot::m_lbPurpose, "m_lbPurpose", "UI42788", &TFoot::m_lbPurValue, "m_lbPurValue", "INMEMO"}};

TfrmEBillAuditFoot::TfrmEBillAuditFoot(TComponent* owner, corvane::Row record, corvane::List auditList)
    : TBaseForm(owner), m_record(std::move(record)), m_auditList(std::move(auditList)) {}

void TfrmEBillAuditFoot::BuildControls() {
  TBaseForm::BuildControls();
  m_pnBasicInfo = NewComponent<TbsSkinPanel>(this, "m_pnBasicInfo");
  bsSkinPanel1 = NewComponent<TbsSkinPanel>(this, "bsSkinPanel1");
  m_pnAuditFoot = NewComponent<TbsSkinPanel>(this, "m_pnAuditFoot");
  m_btnViewFlow = NewComponent<TbsSkinButton>(this, "m_btnViewFlow");
  m_btnClose = NewComponent<TbsSkinButton>(this, "m_btnClose");
  BuildBasicInfo();
  BuildList();
  m_btnViewFlow->OnClick = [this](TObject* sender) { m_btnViewFlowClick(sender); };
  m_btnClose->OnClick = [this](TObject*) { Close(); };
  TColumnLayout column(this);
  column.SetMargins(kMargin, kMargin, kMargin, kMargin);
  column.SetSpacing(kGap);
  column.Add(m_pnBasicInfo);
  column.Add(m_pnAuditFoot, 1);
  column.Add(bsSkinPanel1);
  TRowLayout buttons(bsSkinPanel1);
  buttons.SetSpacing(kGap);
  buttons.AddStretch();
  buttons.Add(m_btnViewFlow);
  buttons.Add(m_btnClose);
  SetBorderStyle(bsSizeable);
  SetPosition(poMainFormCenter);
  SetWidth(kWidth);
  SetHeight(kHeight);
}

void TfrmEBillAuditFoot::BuildBasicInfo() {
  TGridLayout grid(m_pnBasicInfo);
  grid.SetMargins(kMargin, kGap, kMargin, kGap);
  grid.SetSpacing(kRowGap);
  grid.SetColumnStretch(1, 1);
  int row = 0;
  for (const Line& line : kLines) {
    this->*line.caption = NewComponent<TLabel>(this, line.captionName);
    this->*line.value = NewComponent<TLabel>(this, line.valueName);
    (this->*line.value)->SetSelectable(true);
    // A long value is cut by the form and shows whole in its hint.
    (this->*line.value)->SetShowHint(true);
    (this->*line.value)->Widget()->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    grid.Put(this->*line.caption, row, 0, 1, 1, caRight);
    if (this->*line.value != m_lbPurValue) grid.Put(this->*line.value, row, 1);
    ++row;
  }
  // The purpose has a width of its own, which does not bound the values above it.
  TRowLayout purpose = grid.PutRow(row - 1, 1);
  purpose.Add(m_lbPurValue);
  purpose.AddStretch();
  m_lbPurValue->SetWordWrap(true);
  m_lbPurValue->SetLayout(tlTop);
  m_lbPurValue->SetWidth(kPurposeWidth);
}

void TfrmEBillAuditFoot::BuildList() {
  m_lvMain = NewComponent<TKVXListView>(this, "m_lvMain");
  m_sbListH = NewComponent<TbsSkinScrollBar>(this, "m_sbListH", sbHorizontal);
  m_sbListV = NewComponent<TbsSkinScrollBar>(this, "m_sbListV", sbVertical);
  m_lvMain->SetViewStyle(vsReport);
  m_lvMain->SetReadOnly(true);
  m_lvMain->SetGridLines(true);
  m_lvMain->SetRowSelect(true);
  TColumnLayout(m_pnAuditFoot).Add(m_lvMain, 1);
  m_sbListH->AttachTo(m_lvMain);
  m_sbListV->AttachTo(m_lvMain);
}

void TfrmEBillAuditFoot::SetCaptions() {
  SetCaption("UI42778");
  m_pnBasicInfo->SetCaption("UI42779");
  m_pnAuditFoot->SetCaption("UI42789");
  m_btnViewFlow->SetCaption("UI42790");
  m_btnClose->SetCaption("UI42791");
  for (const Line& line : kLines) (this->*line.caption)->SetCaption(line.captionKey);
}

void TfrmEBillAuditFoot::Construct() {
  TBaseForm::Construct();
  try {
    BuildColumns();
  } catch (const corvane::TException& failure) {
    ReportException(failure);
  } catch (const EConvertError& failure) {
    ReportException(corvane::TException(std::string(failure.what())));
  }
}

// Of the display formats this list has only the amount and the right edge.
void TfrmEBillAuditFoot::BuildColumns() {
  CMQueryIntf business;
  corvane::List fieldDefs = g_pPubInfo->GetIniplusList(norvik::kColumnTable, ClassName());
  for (corvane::Row& fieldDef : fieldDefs) {
    corvane::Row columnRow;
    std::string caption;
    business.AddListColumn(m_lvMain, fieldDef, columnRow, caption);
    TListColumn* column = m_lvMain->Columns()[m_lvMain->Columns().Count() - 1];
    if (column->Tag() != cfAmount && column->Tag() != cfRightText) column->SetTag(cfText);
  }
}

void TfrmEBillAuditFoot::ResetForm() {
  TBaseForm::ResetForm();
  if (m_auditList.size() > 0) {
    m_lvMain->Clear();
    m_lvMain->Add(m_auditList, m_lvMain->ColumnIds().toString("; ", false));
  }
  ShowRecord();
  SetCancelButton(m_btnClose);
  SetActiveControl(m_btnClose);
}

void TfrmEBillAuditFoot::ShowRecord() {
  for (const Line& line : kLines) {
    std::string value = m_record.getValue(line.field) + line.join;
    if (line.secondField[0] != '\0') value += m_record.getValue(line.secondField);
    if (this->*line.value == m_lbAmtValue) value += " " + TranslateKey(kAmountUnit);
    (this->*line.value)->SetCaption(std::string(corvane::cutText(value, kMaxShownBytes)));
    (this->*line.value)->SetHint(value);
  }
  const std::string purpose = norvik::BreakableMemo(m_lbPurValue->Caption());
  m_lbPurValue->SetCaption(purpose);
  m_lbPurValue->SetWidth(TextWidth(*m_lbPurValue, kPurposeCharacters, kPurposeWidth));
  // A very long purpose leaves the list and the buttons on the screen.
  m_lbPurValue->SetHeight(TextHeight(*m_lbPurValue, purpose, m_lbPurValue->Width(), 0));
}

void TfrmEBillAuditFoot::m_btnViewFlowClick(TObject*) {
  if (m_record.getValue("FLOWID").empty()) {
    ShowWarnMsg(TranslateKey(norvik::message::kNoFlow), this);
    return;
  }
  ShowFlow();
}

void TfrmEBillAuditFoot::ShowFlow() {
  CMQueryIntf business;
  corvane::CorvaneStream request, answer;
  request.addField(m_record.getField("FLOWID"));
  if (!business.SendRequest(kFlowTransaction, request, answer, this)) return;
  if (answer.getList(kFirstLevel).size() == 0) {
    ShowWarnMsg(TranslateKey(norvik::message::kNoFlow), this);
    return;
  }
  const TFormPointer<TfrmViewBsnFlow> form(CreateForm<TfrmViewBsnFlow>(this, answer));
  form->ShowModal();
}

void ShowAuditFoot(corvane::Row record, corvane::List auditList) {
  const TFormPointer<TfrmEBillAuditFoot> form(
      CreateForm<TfrmEBillAuditFoot>(Application, std::move(record), std::move(auditList)));
  form->ShowModal();
}
