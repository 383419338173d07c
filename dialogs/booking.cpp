#include "dialogs/booking.h"

#include "dialogs/booking_form.h"
#include "dialogs/form_owner.h"

bool ShowBookingDlg(TForm* owner, bool startToday, bool& scheduled, std::string& date) {
  const TFormPointer<TfrmBookingProc> form(CreateForm<TfrmBookingProc>(OwnerOf(owner), startToday));
  form->ShowModal();
  if (form->Tag() != TfrmBookingProc::kConfirmed) return false;
  scheduled = form->m_grpPreFlg->ItemIndex() == TfrmBookingProc::kScheduled;
  date = scheduled ? form->m_edtPreFlgDate->Text() : std::string();
  return true;
}
