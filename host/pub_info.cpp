#include "host/pub_info.h"

#include "host/keys.h"
#include "host/ordinals.h"

namespace ordinals = norvik::ordinals;
using norvik::Outgoing;

namespace {

using ReadRow = std::uint8_t(char**, std::int32_t*, const char*, const char*, char*, std::int32_t);
using WriteField = std::uint8_t(const char*, const char*, char*);
using Store = std::int32_t(const char*, const char*);
using Remove = std::int32_t(const char*);

}  // namespace

void PubInfoIntf::Bind(norvik_handle module) {
  if (m_bound) return;
  m_module = module;
  if (!functions_.Resolve(m_module, ordinals::kPublicInformation))
    throw corvane::TException(norvik::key::kPublicInformationIncomplete);
  functions_.Function<std::int32_t(std::uint32_t)>(ordinals::kStart)(m_module);
  m_bound = true;
}

std::uint32_t PubInfoIntf::GetHandle(const std::string& key) {
  return functions_.Function<std::uint32_t(const char*)>(ordinals::kGetHandle)(Outgoing(key));
}

void PubInfoIntf::SetHandle(const std::string& key, std::uint32_t value) {
  functions_.Function<std::int32_t(const char*, std::uint32_t)>(ordinals::kSetHandle)(Outgoing(key), value);
}

template <class Call>
std::string PubInfoIntf::Read(Call call) const {
  return norvik::ReadText(functions_.Function<void(char*)>(ordinals::kGiveBack), call);
}

// Nearly all reads: the result pair, one to three keys, the error text.
template <class... Text>
std::string PubInfoIntf::ReadByKeys(std::uint32_t ordinal, const Text&... keys) const {
  using Function = std::uint8_t(char**, std::int32_t*, decltype(keys.c_str())..., char*);
  const auto function = functions_.Function<Function>(ordinal);
  (Outgoing(keys), ...);
  return Read([&](char** buffer, std::int32_t* length, char* error) {
    return function(buffer, length, keys.c_str()..., error);
  });
}

corvane::Field PubInfoIntf::GetField(const std::string& block, const std::string& name) {
  return corvane::Field(ReadByKeys(ordinals::kGetField, block, name));
}

void PubInfoIntf::SetField(const std::string& block, const corvane::Field& field) {
  const std::string text = field.toString();
  norvik::ErrorText error(norvik::kReadErrorBytes);
  const auto write = functions_.Function<WriteField>(ordinals::kSetField);
  if (write(Outgoing(block), Outgoing(text), error.Buffer()) == 0) error.ThrowWhole();
}

corvane::List PubInfoIntf::GetList(const std::string& key) {
  return corvane::List(ReadByKeys(ordinals::kGetList, key));
}

corvane::Ini PubInfoIntf::GetIni(const std::string& key) {
  return corvane::Ini(ReadByKeys(ordinals::kGetIni, key));
}

void PubInfoIntf::SetIni(const std::string& key, const corvane::Ini& ini) {
  Replace(ordinals::kRemoveIni, ordinals::kStoreIni, key, ini.toString());
}

std::string PubInfoIntf::GetIniValue(const std::string& key, const std::string& section,
                                     const std::string& item) {
  return ReadByKeys(ordinals::kGetIniValue, key, section, item);
}

corvane::Iniplus PubInfoIntf::GetIniplus(const std::string& key) {
  return corvane::Iniplus(ReadByKeys(ordinals::kGetIniplus, key));
}

void PubInfoIntf::SetIniplus(const std::string& key, const corvane::Iniplus& iniplus) {
  Replace(ordinals::kRemoveIniplus, ordinals::kStoreIniplus, key, iniplus.toString());
}

// Everything that can fail has been done before the old document goes.
void PubInfoIntf::Replace(std::uint32_t removeOrdinal, std::uint32_t storeOrdinal, const std::string& key,
                          const std::string& document) {
  const auto remove = functions_.Function<Remove>(removeOrdinal);
  const auto store = functions_.Function<Store>(storeOrdinal);
  const char* const name = Outgoing(key);
  const char* const text = Outgoing(document);
  remove(name);
  store(name, text);
}

corvane::Row PubInfoIntf::GetIniplusRow(const std::string& key, const std::string& section,
                                        std::int32_t index) {
  const auto function = functions_.Function<ReadRow>(ordinals::kGetIniplusRow);
  const char* const name = Outgoing(key);
  const char* const part = Outgoing(section);
  return corvane::Row(Read([&](char** buffer, std::int32_t* length, char* error) {
    return function(buffer, length, name, part, error, index);
  }));
}

corvane::List PubInfoIntf::GetIniplusList(const std::string& key, const std::string& section) {
  return corvane::List(ReadByKeys(ordinals::kGetIniplusList, key, section));
}
