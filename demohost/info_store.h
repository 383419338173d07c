// The public information of the host: entries by key, some of which live in the user's files.
// libraries/public_information.cpp offers it to the module; client_data.h fills it at the start.
#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <string>

#include "data/corvane.h"

namespace demohost {

/// Handles, fields, lists and configuration documents by key. Keys and values are narrow text. A read of what
/// the store doesn't hold throws Refused with kUnknownEntry and the key. To be used on the user-interface
/// thread.
class InfoStore {
 public:
  /// `folder` holds the kept documents from one run to the next; it is made with the first of them.
  explicit InfoStore(std::filesystem::path folder);

  /// The handle under a key; 0 for an unknown one.
  std::uint32_t Handle(const std::string& key) const;
  /// Enters a handle, also 0, and runs onHandle.
  void SetHandle(const std::string& key, std::uint32_t value);
  /// Runs after each SetHandle; may be empty.
  std::function<void(const std::string& key, std::uint32_t value)> onHandle;

  /// A field of a block. Throws Refused.
  corvane::Field GetField(const std::string& block, const std::string& name) const;
  /// The value of a field, "" where there is none.
  std::string FieldValue(const std::string& block, const std::string& name) const;
  /// Stores a field under its name, in a block that is made where it is missing.
  void SetField(const std::string& block, const corvane::Field& field);

  /// A list. Throws Refused.
  const corvane::List& GetList(const std::string& key) const;
  /// Stores a list.
  void SetList(const std::string& key, const corvane::List& list);

  /// A document of sections with one row each. Throws Refused.
  const corvane::Ini& GetIni(const std::string& key) const;
  /// One value of such a document. An item that its section lacks is empty, since the module asks for the
  /// switches of every class of control; throws Refused for a missing section or document.
  std::string GetIniValue(const std::string& key, const std::string& section, const std::string& item) const;
  /// Stores the document, without writing its file.
  void SetIni(const std::string& key, const corvane::Ini& ini);
  /// Stores one value, in a section and a document that are made where they are missing.
  void SetIniValue(const std::string& key, const std::string& section, const std::string& item,
                   const std::string& value);
  /// Forgets the document; nothing happens for an unknown key.
  void RemoveIni(const std::string& key);

  /// A document of sections with a list each. Throws Refused.
  const corvane::Iniplus& GetIniplus(const std::string& key) const;
  /// The rows of a section; none where the document lacks it, since a screen without a saved layout isn't a
  /// failure. Throws Refused for a missing document.
  corvane::List GetIniplusList(const std::string& key, const std::string& section) const;
  /// One row of a section, counted from 0. Throws Refused.
  corvane::Row GetIniplusRow(const std::string& key, const std::string& section, std::int32_t index) const;
  /// Stores the document and, if it is a kept one, writes its file at once and in one step. Throws Refused
  /// with kNotSaved where the writing fails; the store holds the document all the same.
  void SetIniplus(const std::string& key, const corvane::Iniplus& iniplus);
  /// Forgets the document. A kept one stays in its file until another replaces it, so that nothing is lost
  /// between the two steps of a replacement.
  void RemoveIniplus(const std::string& key);

  /// Makes a document a kept one and reads its file, if there is one; true if the file was good. A file that
  /// isn't such a document is put aside under ".damaged".
  bool KeepIniplus(const std::string& key);
  /// The same for an Ini.
  bool KeepIni(const std::string& key);
  /// Writes an Ini to its file. Throws Refused, with kNotSaved where the writing fails.
  void SaveIni(const std::string& key) const;

 private:
  std::filesystem::path FileOf(const std::string& key) const;
  void Save(const std::string& key, const corvane::Element& document) const;
  template <class Document>
  bool Load(const std::string& key, std::map<std::string, Document>& documents);

  std::filesystem::path folder_;
  std::map<std::string, std::uint32_t> handles_;
  std::map<std::string, corvane::MapField> blocks_;
  std::map<std::string, corvane::List> lists_;
  std::map<std::string, corvane::Ini> inis_;
  std::map<std::string, corvane::Iniplus> iniplus_;
  std::map<std::string, bool> kept_;
};

}  // namespace demohost
