// Which key each caption of a dialog has; a host without texts shows the keys.
#include <gtest/gtest.h>

#include "dialogs/audit_foot_form.h"
#include "dialogs/audit_form.h"
#include "dialogs/booking_form.h"
#include "dialogs/calendar_form.h"
#include "dialogs/error_msg.h"
#include "dialogs/statistics_form.h"
#include "dialogs/view_bsn_flow.h"
#include "tests/support/screen_host.h"
#include "toolkit/application.h"

namespace {

struct Captions : testing::Test {
  // Shows a form and compares the captions of its controls.
  template <class T, class... Arguments>
  void Expect(const char* captions, Arguments&&... arguments) {
    const TFormPointer<T> form(CreateForm<T>(Application, std::forward<Arguments>(arguments)...));
    form->Show();
    ExpectCaptions(*form, captions);
    EXPECT_TRUE(host.failures.empty());
  }

  ScreenHost host;
};

TEST_F(Captions, OfTheDialogs) {
  Expect<TfrmAudit>("=UI12200 m_rdgAudit=UI12201 m_lblNote=UI12204 m_btnOk=UI12205 m_btnCancel=UI12206");
  Expect<TfrmBookingProc>(
      "m_btnOk=UI12205 m_btnCancel=UI12206 m_lblPreFlg=UI40185 m_lblPreFlgDate=UI40186 "
      "m_lbTitle=UI42969",
      false);
  Expect<TfrmEBillAuditFoot>(
      "=UI42778 m_pnBasicInfo=UI42779 m_lbBsn=UI42780 m_lbOpor=UI42781 m_lbOporTime=UI42782 "
      "m_lbPay=UI42783 m_lbRcv=UI42784 m_lbPayAmt=UI42785 m_lbCryType=UI42786 "
      "m_lbPurpose=UI42788 m_pnAuditFoot=UI42789 m_btnViewFlow=UI42790 m_btnClose=UI42791",
      corvane::Row(), corvane::List());
  corvane::CorvaneStream flow;
  flow.addField(corvane::Field("AUDITTOTAL", "0"));
  Expect<TfrmViewBsnFlow>("=UI52434 m_btnClose=UI12517", flow);
  Expect<TDateCalendar>("=UI12093 m_btnok=UI12002 m_btncancel=UI12003 m_lblMonth=UI12094 m_lblTime=UI12095",
                        std::string(), dtDateTime);
  Expect<TFrmErrorMsg>("=UI12008 m_btnOK=UI12007 m_btnDetail=UI12010 m_btnCopy=UI12011",
                       std::string("summary"), std::string("detail"));
  Expect<TfrmStatistics>("m_btnOk=UI12007 m_lbAll=UI12578 m_lbSelected=UI12579");
}

TEST_F(Captions, OfRadioItems) {
  const TFormPointer<TfrmAudit> audit(CreateForm<TfrmAudit>(Application));
  audit->Show();
  EXPECT_EQ(audit->m_rdgAudit->Items().Text(), "UI12202\r\nUI12203\r\n");
  const TFormPointer<TfrmBookingProc> booking(CreateForm<TfrmBookingProc>(Application, false));
  booking->Show();
  EXPECT_EQ(booking->m_grpPreFlg->Items().Text(), "UI42069\r\nUI42070\r\n");
}

}  // namespace
