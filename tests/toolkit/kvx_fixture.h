// What the tests of single controls share: a shown form that takes them, and the operator's clipboard. It
// asserts nothing.
#pragma once

#include <gtest/gtest.h>

#include <QClipboard>
#include <QGuiApplication>
#include <QTest>

#include "toolkit/application.h"
#include "toolkit/form.h"

/// A shown form that takes controls, and an operator's clipboard.
class KvxTest : public testing::Test {
 protected:
  void SetUp() override {
    form = CreateForm<TForm>(Application);
    form->SetWidth(700);
    form->SetHeight(500);
    form->Show();
  }

  /// Makes a control with a name on the form.
  template <class T>
  T* Put(const char* name) {
    T* control = NewComponent<T>(form, name);
    control->SetParent(form);
    control->Widget()->resize(600, 300);
    return control;
  }

  static void Paste(QWidget* widget, const char* utf8) {
    QGuiApplication::clipboard()->setText(QString::fromUtf8(utf8));
    QTest::keyClick(widget, Qt::Key_V, Qt::ControlModifier);
  }

  /// Counts the runs of an event.
  static TNotifyEvent Count(int& runs) {
    return [&runs](TObject*) { ++runs; };
  }

  TForm* form = nullptr;
};
