#include "dialogs/statistics.h"

#include "dialogs/statistics_form.h"

void ShowStatistics(TForm* owner, TKVXListView* listView, const std::string& caption,
                    const corvane::StringVector& columns) {
  const TFormPointer<TfrmStatistics> form(CreateForm<TfrmStatistics>(owner));
  if (form->Prepare(owner, listView, columns, caption)) form->ShowModal();
}
