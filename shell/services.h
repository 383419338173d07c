// The services of one life of the module: the objects behind the module-wide pointers, which are set only
// while that life is served.
#pragma once

#include "dialogs/bank_info.h"
#include "host/error.h"
#include "host/excel.h"
#include "host/print.h"
#include "host/pub_info.h"
#include "host/safe_com.h"
#include "host/translate.h"
#include "toolkit/component.h"

class TApplication;

namespace norvik {

/// Owned by its life, with which the services go: public information first, then translation, errors, print,
/// secure communication, bank directory, spreadsheet.
class Services : public TComponent {
  Q_OBJECT

 public:
  /// From now on the module-wide pointers come and go with the life, which is the one that is served.
  explicit Services(TApplication* life);
  ~Services() override;

  /// Ends every use of the host: an operation that is under way throws LifeEnded when the host comes back
  /// from it.
  void Close();

  /// True from the end of StartModule to the beginning of StopModule.
  bool started = false;
  /// True while a failure is shown. The form that shows it asks the host for texts and fonts as any other
  /// does, and what made the first failure may fail there again.
  bool reporting = false;

 private:
  struct Pointers {
    PubInfoIntf* pubInfo = nullptr;
    TranslateIntf* translate = nullptr;
    ErrorIntf* error = nullptr;
    PrintIntf* print = nullptr;
    SafeComIntf* safeCom = nullptr;
    TBankInfo* bankInfo = nullptr;
    ExcelIntf* excel = nullptr;
  };
  static Pointers Exchange(const Pointers& pointers);

  Pointers put_aside_;
};

/// The services of a life, null if it has none.
Services* ServicesOf(const TApplication* life);

}  // namespace norvik
