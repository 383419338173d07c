#include "dialogs/audit.h"

#include <gtest/gtest.h>

#include <QPlainTextEdit>

#include "dialogs/audit_form.h"
#include "dialogs/com_msg.h"
#include "tests/support/form_host.h"
#include "toolkit/text.h"

namespace {

struct Audit : testing::Test {
  Audit() { host.SetText("UI12207", "reason please"); }

  FormHost host;
};

TEST_F(Audit, ARefusalWithoutAReasonIsAskedForOne) {
  for (const char* reason : {"", "  \r\n "}) {
    std::string message;
    bool stayed = false;
    WhenShown<TfrmAudit> step([&](TfrmAudit& form) {
      form.m_rdgAudit->SetItemIndex(TfrmAudit::kDisagree);
      form.m_memInfo->SetText(reason);
      WhenShown<TFrmComMsg> answer([&](TFrmComMsg& shown) {
        message = shown.m_lblInfo->Caption();
        shown.m_btnOk->Click();
      });
      form.m_btnOk->Click();
      stayed = form.Showing() && form.ActiveControl() == form.m_memInfo;
      form.Close();
    });
    bool agree = true;
    std::string opinion;
    EXPECT_FALSE(ShowAuditDlg(agree, opinion, nullptr)) << reason;
    EXPECT_EQ(message, "reason please");
    EXPECT_TRUE(stayed);
  }
}

TEST_F(Audit, TheOpinionTakesTwoHundredCharactersOfAnyKind) {
  WhenShown<TfrmAudit> step([&](TfrmAudit& form) {
    auto* edit = static_cast<QPlainTextEdit*>(form.m_memInfo->Widget());
    edit->insertPlainText(ToQt(Ansi("银")).repeated(150) + QString(60, QLatin1Char('a')));
    EXPECT_EQ(form.m_memInfo->Text().size(), 150u * 2 + 50);
    form.Close();
  });
  bool agree = true;
  std::string opinion;
  ShowAuditDlg(agree, opinion, nullptr);
  EXPECT_TRUE(step.Came());
}

}  // namespace
