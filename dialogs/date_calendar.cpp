#include "dialogs/date_calendar.h"

#include "dialogs/calendar_form.h"
#include "toolkit/application.h"
#include "toolkit/conversion.h"

namespace {

const char* PatternOf(TKVXDateType type) {
  if (type == dtDate) return "yyyymmdd";
  return type == dtTime ? "hhnnss" : "yyyymmddhhnnss";
}

}  // namespace

std::string PickDateTime(const std::string& text, TKVXDateType type) {
  const TFormPointer<TDateCalendar> form(CreateForm<TDateCalendar>(Application, text, type));
  form->ShowModal();
  return form->Tag() == TDateCalendar::kConfirmed ? FormatDateTime(PatternOf(type), form->m_dateTime) : text;
}
