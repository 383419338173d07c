// The form that the tests of forms and controls open: a few controls in a known order, and a log of the steps
// and events. It asserts nothing.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "toolkit/buttons.h"
#include "toolkit/form.h"
#include "toolkit/labels.h"
#include "toolkit/layout.h"
#include "toolkit/panels.h"

/// A form with a few controls that writes down what happens to it.
class TTestForm : public TForm {
  Q_OBJECT

 public:
  using TForm::TForm;

  void BuildControls() override {
    Log("BuildControls");
    m_pnTop = NewComponent<TbsSkinPanel>(this, "m_pnTop");
    m_lbText = NewComponent<TLabel>(this, "m_lbText");
    m_btnFirst = NewComponent<TbsSkinButton>(this, "m_btnFirst");
    m_btnSecond = NewComponent<TbsSkinButton>(this, "m_btnSecond");
    m_btnThird = NewComponent<TbsSkinButton>(this, "m_btnThird");
    m_crbTick = NewComponent<TbsSkinCheckRadioBox>(this, "m_crbTick");
    TColumnLayout page(this);
    page.Add(m_pnTop);
    page.Add(m_btnThird);
    TRowLayout row(m_pnTop);
    row.Add(m_lbText);
    row.Add(m_btnFirst);
    row.Add(m_crbTick);
    row.Add(m_btnSecond);
    OnShow = [this](TObject*) { Log("OnShow"); };
    OnClose = [this](TObject*) { Log("OnClose"); };
    OnActivate = [this](TObject*) { Log("OnActivate"); };
  }
  void SetCaptions() override { Log("SetCaptions"); }
  void Construct() override {
    Log("Construct");
    if (failing) throw std::runtime_error("construction failed");
  }
  void FormDestroy() override {
    Log("FormDestroy");
    TForm::FormDestroy();
  }
  std::intptr_t Dispatch(std::uint32_t message, std::uintptr_t wparam, std::intptr_t lparam) override {
    if (message == 0x7E9) Log("0x7E9");
    if (message == WM_ACTIVATE) Log("WM_ACTIVATE " + std::to_string(wparam));
    return TForm::Dispatch(message, wparam, lparam);
  }

  void Log(const std::string& event) {
    if (events != nullptr) events->push_back(event);
  }

  std::vector<std::string>* events = nullptr;
  bool failing = false;
  TbsSkinPanel* m_pnTop = nullptr;
  TLabel* m_lbText = nullptr;
  TbsSkinButton* m_btnFirst = nullptr;
  TbsSkinButton* m_btnSecond = nullptr;
  TbsSkinButton* m_btnThird = nullptr;
  TbsSkinCheckRadioBox* m_crbTick = nullptr;
};

/// A test form that logs into a vector from its construction on.
class TLoggedForm : public TTestForm {
  Q_OBJECT

 public:
  TLoggedForm(TComponent* owner, std::vector<std::string>* log, bool fail = false) : TTestForm(owner) {
    events = log;
    failing = fail;
  }
};
