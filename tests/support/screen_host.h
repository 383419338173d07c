// A host for the query screens, with the tables that they read, and what a test of a screen asks of it. The
// tests of the frames and the screens use it; it makes no form.
#pragma once

#include <functional>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "tests/support/form_host.h"

/// A FormHost in which the query screens live: all services, the user's flows and accounts, dictionaries,
/// column tables and a bank. Its day is 2026-11-22, a Sunday.
class ScreenHost : public FormHost {
 public:
  using Table = std::vector<std::vector<std::string>>;

  ScreenHost();
  ~ScreenHost();

  /// The user's accounts "A1" to "A<count>", named "Name 1" and so on.
  void SetAccounts(int count);
  /// The tables that answer GetList.
  void SetList(const std::string& key, const corvane::List& rows);
  /// The column table of a class: COLID, DISPLAY, WIDTH, ALIGN, COLFMT.
  void SetColumns(const std::string& className, const Table& columns);
  /// The saved layouts of a class: ColumnID, ColumnWidth, ColumnCaption.
  void SetLayout(const std::string& className, const Table& columns);
  /// What the bank answers to every request from now on.
  void SetAnswerRows(const corvane::List& rows);
  void RefuseExchange(const std::string& key);

  /// The texts of the requests sent under a transaction code.
  std::vector<std::string> Requests(const std::string& code) const;
  /// The calls of a function of the public information library with this first argument.
  std::vector<fakehost::Call> Stored(std::uint32_t ordinal, const std::string& key) const;

  /// A list of rows; the first line names the columns.
  static corvane::List ListOf(const Table& lines);
};

/// Expects the captions of a form's controls that "name=caption" states, separated by blanks; an empty name
/// is the form itself.
void ExpectCaptions(const TForm& form, const std::string& captions);

/// The names of the switches that are on, separated by blanks; "nothing" if all are off.
std::string WhatIsOn(std::initializer_list<std::pair<const char*, bool>> switches);

/// Runs an action and answers the message that it shows, with yes if it is a question; returns the message's
/// text, empty if none was shown.
std::string MessageOf(const std::function<void()>& action, bool yes = true);
/// The same for a reported failure.
std::string FailureOf(const std::function<void()>& action);
