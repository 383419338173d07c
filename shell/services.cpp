// The module-wide service pointers. InitModule sets them, Release clears them; both run on the user-interface
// thread, as does everybody who reads them.
#include "dialogs/bank_info.h"
#include "host/error.h"
#include "host/excel.h"
#include "host/print.h"
#include "host/pub_info.h"
#include "host/safe_com.h"
#include "host/translate.h"

PubInfoIntf* g_pPubInfo = nullptr;
TranslateIntf* g_pTranslate = nullptr;
ErrorIntf* g_pError = nullptr;
PrintIntf* g_pPrint = nullptr;
SafeComIntf* g_pSafeCom = nullptr;
ExcelIntf* g_pExcel = nullptr;
TBankInfo* g_pBankInfo = nullptr;
