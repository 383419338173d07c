// The services of one life of the module: the objects that the module-wide pointers point to, which are set
// only while that life is served. shell/module.cpp makes and closes them; everybody else uses the pointers.
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
  /// From now on the module-wide pointers are set and cleared with the life, which is the one that is served.
  explicit Services(TApplication* life);
  ~Services() override;

  /// Ends every use of the host: an operation in progress throws LifeEnded when the host returns from it.
  void Close();

  /// True from the end of StartModule to the beginning of StopModule.
  bool started = false;
  /// True while a failure is shown. The form that shows it reads texts and fonts from the host as any other
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

  Pointers setAside_;
};

/// The services of a life, null if it has none.
Services* ServicesOf(const TApplication* life);

}  // namespace norvik
