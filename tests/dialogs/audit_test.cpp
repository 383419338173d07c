#include "dialogs/audit.h"

#include <gtest/gtest.h>

#include <QPlainTextEdit>

#include "dialogs/audit_form.h"
#include "dialogs/com_msg.h"
#include "tests/support/form_host.h"
#include "toolkit/application.h"
#include "toolkit/text.h"

namespace {

class Audit : public testing::Test {
 protected:
  Audit() {
    host.SetText("UI12202", "同意");
    host.SetText("UI12203", "不同意");
    host.SetText("UI12207", "reason please");
  }

  FormHost host;
};

TEST_F(Audit, GivesVerdictAndOpinionOnlyWhenConfirmed) {
  using Step = std::function<void(TfrmAudit&)>;
  const struct {
    const char* name;
    Step step;
    bool confirmed, agree;
    const char* opinion;
  } cases[] = {{"agreed at once", [](TfrmAudit& form) { form.m_btnOk->Click(); }, true, true, ""},
               {"agreed with an opinion",
                [](TfrmAudit& form) {
                  form.m_memInfo->SetText(Ansi("好\r\nyes"));
                  form.m_btnOk->Click();
                },
                true, true, "好\r\nyes"},
               {"refused with a reason",
                [](TfrmAudit& form) {
                  form.m_rdgAudit->SetItemIndex(TfrmAudit::kDisagree);
                  form.m_memInfo->SetText(" no ");
                  form.m_btnOk->Click();
                },
                true, false, " no "},
               {"cancelled", [](TfrmAudit& form) { form.m_btnCancel->Click(); }, false, false, "before"},
               {"closed", [](TfrmAudit& form) { form.Close(); }, false, false, "before"}};
  for (const auto& row : cases) {
    bool agree = false;
    std::string opinion = "before";
    WhenShown<TfrmAudit> step([&](TfrmAudit& form) {
      EXPECT_EQ(form.m_rdgAudit->ItemIndex(), TfrmAudit::kAgree) << row.name;
      EXPECT_EQ(form.m_rdgAudit->Items()[1], Ansi("不同意"));
      row.step(form);
    });
    EXPECT_EQ(ShowAuditDlg(agree, opinion, nullptr), row.confirmed) << row.name;
    EXPECT_TRUE(step.Came()) << row.name;
    EXPECT_EQ(agree, row.agree) << row.name;
    EXPECT_EQ(opinion, Ansi(row.opinion)) << row.name;
  }
}

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
