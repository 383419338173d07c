// The dialog that asks for a file to write. Exports use it. Opening files, printing and colours of the
// original's dialogs are not there; messages are forms of the module.
#pragma once

#include <string>

#include "toolkit/component.h"

class TForm;

/// Asks for the name of a file to write. Nothing is written and nothing asked about an existing file.
class TSaveDialog : public TComponent {
  Q_OBJECT

 public:
  explicit TSaveDialog(TComponent* owner) : TComponent(owner) {}

  /// Pairs of text and pattern, all separated by "|": "Text (*.txt)|*.txt|XML (*.xml)|*.xml".
  std::string Filter() const { return filter_; }
  void SetFilter(const std::string& filter) { filter_ = filter; }
  /// The chosen pair, counted from 1.
  int FilterIndex() const { return filterIndex_; }
  void SetFilterIndex(int index) { filterIndex_ = index; }
  /// Extension, with or without its dot, that a name without one gets.
  std::string DefaultExt() const { return defaultExt_; }
  void SetDefaultExt(const std::string& extension) { defaultExt_ = extension; }
  /// The file that is offered, and after Execute the chosen one.
  std::string FileName() const { return fileName_; }
  void SetFileName(const std::string& name) { fileName_ = name; }
  /// Title of the dialog; empty: the platform's.
  std::string Title() const { return title_; }
  void SetTitle(const std::string& title) { title_ = title; }

  /// Shows the dialog, a QFileDialog that bears the component's name, over a form or the active window, and
  /// waits for it. True when the user accepted a name; it is in FileName with the default extension added
  /// where it has none.
  bool Execute(TForm* parent = nullptr);

  /// Runs when the user picks another pair of the filter, after FilterIndex has changed.
  TNotifyEvent OnTypeChange;

 private:
  std::string WithExtension(const std::string& name) const;

  std::string filter_;
  std::string defaultExt_;
  std::string fileName_;
  std::string title_;
  int filterIndex_ = 1;
};
