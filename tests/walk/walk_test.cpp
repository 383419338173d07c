// Every form of the module as an operator of the demonstration host meets it, in each of its languages and at
// three sizes of the font, with its panels open and rolled up.
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <map>
#include <optional>
#include <regex>
#include <set>

#include "demohost/check/check_host.h"
#include "dialogs/audit_foot_form.h"
#include "dialogs/audit_form.h"
#include "dialogs/booking_form.h"
#include "dialogs/busy_form.h"
#include "dialogs/calendar_form.h"
#include "dialogs/com_msg.h"
#include "dialogs/error_msg.h"
#include "dialogs/statistics_form.h"
#include "dialogs/view_bsn_flow.h"
#include "framework/columns/select_column.h"
#include "host/translate.h"
#include "repository/enquiry_form.h"
#include "repository/norvik_dtl_qry.h"
#include "repository/norvik_e_loan_qry.h"
#include "repository/norvik_qry.h"
#include "repository/record_info_form.h"
#include "shell/module.h"
#include "tests/demohost/folder.h"
#include "tests/walk/look.h"
#include "toolkit/application.h"
#include "toolkit/buttons.h"
#include "toolkit/kvx_list_view.h"
#include "toolkit/panels.h"
#include "toolkit/screen.h"
#include "toolkit/text.h"

namespace fs = std::filesystem;

namespace {

// As long as a bank's own names are.
constexpr const char* kLongText = "Demonstration Bank of China 演示银行股份有限公司上海市浦东新区第一支行";

// The classes below TForm that no other is derived from, as the product's headers declare them.
std::set<std::string> FormClasses() {
  static const std::regex kClass("class (T\\w+) : public (T\\w+)");
  std::map<std::string, std::string> bases;
  for (const char* folder : {"dialogs", "framework", "repository"}) {
    for (const auto& entry : fs::recursive_directory_iterator(fs::path(WALK_SOURCES) / folder)) {
      std::ifstream file(entry.path());
      std::smatch found;
      for (std::string line; std::getline(file, line);) {
        if (std::regex_search(line, found, kClass)) bases[found[1]] = found[2];
      }
    }
  }
  std::set<std::string> classes;
  for (const auto& [name, base] : bases) {
    std::string root = base;
    while (bases.count(root) != 0) root = bases[root];
    if (root == "TForm") classes.insert(name);
  }
  for (const auto& [name, base] : bases) classes.erase(base);
  return classes;
}

// A text for every field that is asked for by a column.
corvane::List RowsFor(const TKVXListView* list) {
  corvane::List rows;
  for (const char* text : {"1.00", kLongText}) {
    corvane::Row row;
    for (const std::string& column : list->ColumnIds()) row[column] = Ansi(text);
    rows.addRow(row);
  }
  return rows;
}

corvane::Property RecordFor(std::vector<norvik::RecordPanel> panels, const std::string& type) {
  corvane::Property record;
  for (const norvik::RecordPanel& panel : panels) {
    for (const norvik::RecordRow& row : panel.rows) {
      record[row.field] = Ansi(kLongText);
      if (row.firstType != nullptr && *row.firstType->field != '\0')
        record[row.firstType->field] = Ansi(kLongText);
    }
  }
  record["BILLTYP"] = type;
  return record;
}

corvane::CorvaneStream Flow() {
  corvane::CorvaneStream answer;
  answer.addField(corvane::Field("BSNNM", Ansi(kLongText)));
  answer.addField(corvane::Field("AUDITTOTAL", "1"));
  for (const char* name : {"PSTLEVEL0", "PSTLEVEL1"}) {
    corvane::List step;
    step.setAttribute("name", name);
    step.setAttribute("PSTNM", Ansi(kLongText));
    corvane::Row person;
    for (const char* field : {"OPRNO", "OPRNM", "CSTNMCN"}) person[field] = Ansi(kLongText);
    step.addRow(person);
    answer.addList(step);
  }
  return answer;
}

class Walk : public testing::TestWithParam<std::tuple<const char*, int>> {
 protected:
  Walk() {
    const auto [language, size] = GetParam();
    demohost::Options options;
    options.share = fs::path(WALK_SOURCES) / "demohost/share";
    options.language = language;
    demohost::check::PrepareFolder(options, folder_.Path());
    demohost::InfoStore settings(folder_ / "config");
    settings.KeepIni("SYSCONFIG_DATA");
    settings.SetIniValue("SYSCONFIG_DATA", "APPLICATION.FONT", "Size", std::to_string(size));
    settings.SaveIni("SYSCONFIG_DATA");
    host_.emplace(options, folder_.Path());
    norvik::StartModule(host_->PublicInformation());
    Application->OnException = [](TObject*, std::exception_ptr) { ADD_FAILURE() << "a report"; };
  }
  ~Walk() override { norvik::StopModule(); }

  // Looks at a form that shows, open and with its panels rolled up and opened again.
  void Visit(TForm* form, const std::string& state = {}) {
    visited_.insert(form->ClassName());
    Judge(form, state);
    std::vector<TbsSkinExPanel*> panels;
    for (int i = 0; i < form->ComponentCount(); ++i) {
      if (auto* panel = qobject_cast<TbsSkinExPanel*>(form->Components(i))) panels.push_back(panel);
    }
    if (panels.empty()) return;
    for (const bool rolled : {true, false}) {
      for (TbsSkinExPanel* panel : panels) {
        panel->SetRollState(rolled);
        Judge(form, state + (rolled ? " rolling up " : " opening ") + panel->Name());
      }
    }
  }

  // Makes a form, shows it and looks at it.
  template <class T, class... Arguments>
  void Show(Arguments&&... arguments) {
    const TFormPointer<T> form(CreateForm<T>(Application, std::forward<Arguments>(arguments)...));
    Present(form.get());
  }

  void Present(TForm* form) {
    form->Show();
    Visit(form);
    form->Close();
  }

  template <class T>
  void ShowScreen() {
    const TFormPointer<T> screen(CreateForm<T>(Application));
    screen->Show();
    screen->m_lvMain->Add(RowsFor(screen->m_lvMain), "");
    screen->m_lvMainClick(screen.get());
    Visit(screen.get());
    const TFormPointer<TfrmSelectColumn> columns(
        CreateForm<TfrmSelectColumn>(screen.get(), screen->ClassName(), screen->m_lvMain));
    columns->m_lvMain->Items().Add()->SetCaption(Ansi(kLongText));
    Present(columns.get());
    const TFormPointer<TfrmStatistics> sums(CreateForm<TfrmStatistics>(screen.get()));
    screen->m_lvMain->DelItem(1);
    screen->m_lvMain->CheckAll();
    ASSERT_TRUE(sums->Prepare(screen.get(), screen->m_lvMain, screen->m_sumColumns, screen->Caption()));
    Present(sums.get());
  }

  template <class T>
  void ShowRecord(std::vector<norvik::RecordPanel> panels) {
    for (const char* type : {"UI40116", "UI40117"}) {
      const TFormPointer<T> view(CreateForm<T>(Application));
      view->SetRecord(RecordFor(panels, g_pTranslate->Translate(type)));
      Present(view.get());
    }
  }

  template <class T>
  void ShowEnquiry() {
    const TFormPointer<T> dialog(CreateForm<T>(Application));
    corvane::Row head;
    for (const char* field : {"TOTALNM", "BILLNUM", "ACCPBNM", "ISSDATE", "DUEDATE", "PMMONEY"})
      head[field] = Ansi(kLongText);
    head["BILLTYP"] = "AC02";
    dialog->SetRecord(head);
    dialog->m_lvMain->Add(RowsFor(dialog->m_lvMain), "");
    Present(dialog.get());
  }

  std::set<std::string> visited_;

 private:
  void Judge(TForm* form, const std::string& state) {
    // Each level of layouts takes a round.
    for (int i = 0; i < 5; ++i) Application->ProcessMessages();
    EXPECT_TRUE(form->Width() <= Screen->Width() && form->Height() <= Screen->Height())
        << form->ClassName() << state << " is larger than the screen";
    for (const std::string& fault : FaultsOf(form))
      ADD_FAILURE() << form->ClassName() << state << ": " << fault;
  }

  Folder folder_;
  std::optional<demohost::check::CheckHost> host_;
};

TEST_P(Walk, FindsNoFaultInAnyForm) {
  ShowScreen<TfrmNorvikQry>();
  ShowScreen<TfrmNorvikELoanQry>();
  ShowScreen<TfrmNorvikDTLQry>();
  ShowRecord<TfrmQryInfo>(norvik::BillRecord());
  ShowRecord<TfrmAppQryInfo>(norvik::ApplicationRecord());
  ShowRecord<TfrmDetailQryInfo>(norvik::EventRecord());
  ShowEnquiry<TfrmECDSHistoryDtl>();
  ShowEnquiry<TfrmECDSignDtl>();
  ShowEnquiry<TfrmBigResultDtl>();
  const std::string message = g_pTranslate->Translate("UI12581");
  for (const TMessageMode mode :
       {TMessageMode::kInformation, TMessageMode::kWarning, TMessageMode::kQuestion})
    Show<TFrmComMsg>(message, mode);
  const TFormPointer<TFrmErrorMsg> failure(CreateForm<TFrmErrorMsg>(Application, message, message));
  failure->Show();
  Visit(failure.get());
  failure->m_btnDetail->Click();
  Visit(failure.get(), " with its detail");
  failure->m_btnDetail->Click();
  Visit(failure.get(), " closed again");
  for (const TKVXDateType type : {dtDate, dtTime, dtDateTime}) Show<TDateCalendar>("20260415091500", type);
  Show<TfrmAudit>();
  Show<TfrmBookingProc>(true);
  corvane::Row record;
  for (const char* field : {"BSNName", "OPRNM", "SMTDATE", "SMTTIME", "ACCPACC", "ACCPNAM", "PYEEACC",
                            "PYEENAM", "PAYAMT", "CRYTYPE", "INMEMO"})
    record[field] = Ansi(kLongText);
  Show<TfrmEBillAuditFoot>(record, corvane::List());
  Show<TfrmViewBsnFlow>(Flow());
  Show<TBarForm>("key");
  Show<TWaitForm>();
  EXPECT_EQ(visited_, FormClasses());
}

INSTANTIATE_TEST_SUITE_P(Everywhere, Walk,
                         testing::Combine(testing::Values("Simplified Chinese", "Traditional Chinese",
                                                          "English"),
                                          testing::Values(9, 14, 20)),
                         [](const auto& info) {
                           std::string name =
                               std::get<0>(info.param) + std::to_string(std::get<1>(info.param));
                           std::erase(name, ' ');
                           return name;
                         });

}  // namespace
