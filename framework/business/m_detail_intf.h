// The business objects of a detail dialog: the one of its frame, and the one that the dialog has of its own.
// The frame and the enquiry dialogs own one each.
#pragma once

#include <map>
#include <string>

#include "data/corvane.h"
#include "framework/business/m_interface.h"

/// The business object of the detail frame.
class CMDetailIntf : public CMInterface {
 public:
  bool ReservedCheck1() override { return true; }
  bool ReservedCheck2() override { return true; }
  bool ReservedCheck3() override { return true; }

  /// Builds an audit request from the ticked records: the list "userDataList", and the fields of the
  /// approver's verdict under the business code `code`. False, which leaves the request unfinished, if
  /// nothing is ticked or the opinion is too long, both reported to the user, or if the audit dialog is
  /// cancelled.
  virtual bool BuildDetailAuditRequest(TKVXListView* listView, const std::string& code,
                                       corvane::CorvaneStream& request);

  virtual bool ReservedCheck5() { return true; }
};

/// The business object that a detail dialog has of its own, beside its frame's.
class CDetailCommon : public CMDetailIntf {
 protected:
  /// For what a descendant stores of its records; nothing here uses them.
  corvane::List records_;
  std::map<std::string, std::string> texts_;
};
