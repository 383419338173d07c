#include "demohost/info_store.h"

#include "demohost/refusals.h"
#include "demohost/text_file.h"
#include "demohost/words.h"
#include "platform/code_page.h"

namespace demohost {
namespace {

[[noreturn]] void RefuseEntry(const std::string& key) {
  throw Refused(refusal::kUnknownEntry, norvik::Utf8FromAnsi(key));
}

template <class Map>
const typename Map::mapped_type& Entry(const Map& map, const std::string& key) {
  const auto found = map.find(key);
  if (found == map.end()) RefuseEntry(key);
  return found->second;
}

}  // namespace

InfoStore::InfoStore(std::filesystem::path folder) : folder_(std::move(folder)) {}

std::uint32_t InfoStore::Handle(const std::string& key) const {
  const auto found = handles_.find(key);
  return found == handles_.end() ? 0 : found->second;
}

void InfoStore::SetHandle(const std::string& key, std::uint32_t value) {
  handles_[key] = value;
  if (onHandle) onHandle(key, value);
}

corvane::Field InfoStore::GetField(const std::string& block, const std::string& name) const {
  return Entry(Entry(blocks_, block), name);
}

std::string InfoStore::FieldValue(const std::string& block, const std::string& name) const {
  const auto found = blocks_.find(block);
  if (found == blocks_.end()) return {};
  const auto field = found->second.find(name);
  return field == found->second.end() ? std::string() : field->second.getValue();
}

void InfoStore::SetField(const std::string& block, const corvane::Field& field) {
  blocks_[block].insert_or_assign(field.name(), field);
}

const corvane::List& InfoStore::GetList(const std::string& key) const {
  return Entry(lists_, key);
}

void InfoStore::SetList(const std::string& key, const corvane::List& list) {
  lists_[key] = list;
}

const corvane::Ini& InfoStore::GetIni(const std::string& key) const {
  return Entry(inis_, key);
}

std::string InfoStore::GetIniValue(const std::string& key, const std::string& section,
                                   const std::string& item) const {
  const corvane::Ini& ini = Entry(inis_, key);
  if (ini.find(section) == ini.end()) RefuseEntry(key + " " + section);
  return ini.getSection(section).getValue(item);
}

void InfoStore::SetIni(const std::string& key, const corvane::Ini& ini) {
  inis_[key] = ini;
}

void InfoStore::SetIniValue(const std::string& key, const std::string& section, const std::string& item,
                            const std::string& value) {
  corvane::Ini& ini = inis_[key];
  corvane::Row row = ini.getSection(section);
  row[item] = value;
  ini.addSection(section, row);
}

void InfoStore::RemoveIni(const std::string& key) {
  inis_.erase(key);
}

const corvane::Iniplus& InfoStore::GetIniplus(const std::string& key) const {
  return Entry(iniplus_, key);
}

corvane::List InfoStore::GetIniplusList(const std::string& key, const std::string& section) const {
  return Entry(iniplus_, key).getSection(section);
}

corvane::Row InfoStore::GetIniplusRow(const std::string& key, const std::string& section,
                                      std::int32_t index) const {
  const corvane::List rows = GetIniplusList(key, section);
  if (index < 0 || static_cast<std::uint32_t>(index) >= rows.size()) {
    RefuseEntry(key + " " + section + " " + std::to_string(index));
  }
  return rows.getRow(static_cast<unsigned>(index));
}

void InfoStore::SetIniplus(const std::string& key, const corvane::Iniplus& iniplus) {
  iniplus_[key] = iniplus;
  if (kept_.count(key) != 0) Save(key, iniplus);
}

void InfoStore::RemoveIniplus(const std::string& key) {
  iniplus_.erase(key);
}

bool InfoStore::KeepIniplus(const std::string& key) {
  kept_[key] = true;
  iniplus_.try_emplace(key);
  return Load(key, iniplus_);
}

bool InfoStore::KeepIni(const std::string& key) {
  kept_[key] = true;
  inis_.try_emplace(key);
  return Load(key, inis_);
}

void InfoStore::SaveIni(const std::string& key) const {
  Save(key, Entry(inis_, key));
}

std::filesystem::path InfoStore::FileOf(const std::string& key) const {
  return folder_ / (LowerAscii(key) + ".xml");
}

void InfoStore::Save(const std::string& key, const corvane::Element& document) const {
  try {
    // The file is UTF-8, as its prolog says.
    ReplaceFile(FileOf(key), norvik::Utf8FromAnsi(document.toString()));
  } catch (const FileError& error) {
    throw Refused(refusal::kNotSaved, error.what());
  }
}

template <class Document>
bool InfoStore::Load(const std::string& key, std::map<std::string, Document>& documents) {
  const std::filesystem::path file = FileOf(key);
  std::error_code error;
  if (!std::filesystem::exists(file, error)) return false;
  try {
    documents[key].fromString(norvik::AnsiFromUtf8(ReadFile(file)));
    return true;
  } catch (const corvane::TException&) {
    documents[key].clear();
    std::filesystem::rename(file, file.string() + ".damaged", error);
  } catch (const FileError&) {
    documents[key].clear();
  }
  return false;
}

}  // namespace demohost
