#pragma once

#include <cstdint>
#include <filesystem>
#include <functional>
#include <map>
#include <string>

#include "data/corvane.h"

namespace demohost {

// The host's public information: handles, fields, lists and configuration documents by key. Keys and values
// are narrow text. A read of what isn't there throws Refused with kUnknownEntry and the key. To be used on
// the user-interface thread.
class InfoStore {
 public:
  // folder: where the kept documents live from one run to the next.
  explicit InfoStore(std::filesystem::path folder);

  // 0 for an unknown key.
  std::uint32_t Handle(const std::string& key) const;
  void SetHandle(const std::string& key, std::uint32_t value);
  // Called after each SetHandle.
  std::function<void(const std::string& key, std::uint32_t value)> onHandle;

  corvane::Field GetField(const std::string& block, const std::string& name) const;
  // The value of a field, "" where there is none.
  std::string FieldValue(const std::string& block, const std::string& name) const;
  void SetField(const std::string& block, const corvane::Field& field);

  const corvane::List& GetList(const std::string& key) const;
  void SetList(const std::string& key, const corvane::List& list);

  const corvane::Ini& GetIni(const std::string& key) const;
  // An item that its section lacks is empty, since the module asks for the switches of every class of
  // control; a missing section or document is refused.
  std::string GetIniValue(const std::string& key, const std::string& section, const std::string& item) const;
  void SetIni(const std::string& key, const corvane::Ini& ini);
  void SetIniValue(const std::string& key, const std::string& section, const std::string& item,
                   const std::string& value);
  void RemoveIni(const std::string& key);

  const corvane::Iniplus& GetIniplus(const std::string& key) const;
  // The rows of a section, none where the document lacks it: a screen without a saved layout isn't a failure.
  corvane::List GetIniplusList(const std::string& key, const std::string& section) const;
  corvane::Row GetIniplusRow(const std::string& key, const std::string& section, std::int32_t index) const;
  // A kept document goes to its file at once, in one step; throws Refused with kNotSaved where that fails,
  // and the store holds it all the same.
  void SetIniplus(const std::string& key, const corvane::Iniplus& iniplus);
  // A kept document stays in its file until another takes its place, so that nothing is lost between the two
  // steps of a replacement.
  void RemoveIniplus(const std::string& key);

  // Makes a document kept: what its file holds is read now, and a file that can't be read is put aside under
  // ".damaged". True if there was a good file.
  bool KeepIniplus(const std::string& key);
  bool KeepIni(const std::string& key);
  // Writes a kept Ini to its file; throws Refused with kNotSaved.
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
