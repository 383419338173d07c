// The actions of a form as a table: name, caption key, picture and handler. The frames and the screens build
// their action lists from it; where the actions appear is up to the form.
#pragma once

#include "toolkit/action.h"
#include "toolkit/image_list.h"

/// One action: the form's member that holds it, and what it starts with.
template <class Form>
struct ActionLine {
  TAction* Form::*action;
  const char* name;
  const char* captionKey;
  TStockImage image;
  void (Form::*execute)(TObject* sender);  ///< null: the action has no handler
};

/// Makes the form's actions in the order of the table; their pictures join the images of `list`.
template <class Form, std::size_t kCount>
void BuildActions(Form* form, TActionList* list, const ActionLine<Form> (&lines)[kCount]) {
  for (const ActionLine<Form>& line : lines) {
    const int image = line.image == siNone ? -1 : list->Images()->Add(line.image);
    TAction* action = list->NewAction(line.name, line.captionKey, image);
    if (line.execute != nullptr) {
      action->OnExecute = [form, execute = line.execute](TObject* sender) { (form->*execute)(sender); };
    }
    form->*line.action = action;
  }
}

/// Sets the captions of the actions to their keys.
template <class Form, std::size_t kCount>
void SetActionCaptions(Form* form, const ActionLine<Form> (&lines)[kCount]) {
  for (const ActionLine<Form>& line : lines) (form->*line.action)->SetCaption(line.captionKey);
}
