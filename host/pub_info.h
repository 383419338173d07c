// The proxy of the host's public information library: configuration, dictionaries and handles by key.
//
// For all folders above, through g_pPubInfo. It caches nothing: each read asks the host.
#pragma once

#include <cstdint>
#include <string>

#include "data/corvane.h"
#include "host/binding.h"

/// The host's public information library: configuration, dictionaries and handles by key.
///
/// A read that the host refuses throws TIOException with the host's text as its key; a text from the host
/// that can't be parsed throws the key of the class that was asked for. A key, block, name or document with a
/// NUL in it throws TException "CF30005" before anything is sent. All calls: user-interface thread, after
/// Bind.
class PubInfoIntf {
 public:
  /// Nothing is called before Bind.
  PubInfoIntf() = default;
  /// A proxy is not copied.
  PubInfoIntf(const PubInfoIntf&) = delete;
  /// A proxy is not assigned to.
  PubInfoIntf& operator=(const PubInfoIntf&) = delete;
  virtual ~PubInfoIntf() = default;

  /// Binds the 69 functions of the library and starts it; a second call does nothing. TException "CF15001" if
  /// any function is missing.
  void Bind(norvik_handle module);

  /// The value under the key; what an unknown key gives is up to the host.
  std::uint32_t GetHandle(const std::string& key);
  /// Stores a value under the key.
  void SetHandle(const std::string& key, std::uint32_t value);

  /// Reads the field of that name in a block.
  corvane::Field GetField(const std::string& block, const std::string& name);

  /// Stores the field in the block under the field's own name. TIOException with the host's text if it
  /// refuses.
  void SetField(const std::string& block, const corvane::Field& field);

  /// Reads a list.
  corvane::List GetList(const std::string& key);

  /// Reads an Ini document.
  corvane::Ini GetIni(const std::string& key);

  /// Replaces an Ini document; the old one stays if the new one can't be written. The host
  /// reports no failure.
  void SetIni(const std::string& key, const corvane::Ini& ini);

  /// One value of an Ini document, byte for byte.
  std::string GetIniValue(const std::string& key, const std::string& section, const std::string& item);

  /// Reads an Iniplus document.
  corvane::Iniplus GetIniplus(const std::string& key);

  /// Replaces an Iniplus document, as SetIni.
  void SetIniplus(const std::string& key, const corvane::Iniplus& iniplus);

  /// One row of a section, counted from 0.
  corvane::Row GetIniplusRow(const std::string& key, const std::string& section, std::int32_t index);

  /// All rows of a section.
  corvane::List GetIniplusList(const std::string& key, const std::string& section);

  /// Calls the host no more: each operation throws LifeEnded from now on, one that is under way as soon as
  /// the host comes back from it.
  void Close() { functions_.Close(); }

 private:
  template <class Call>
  std::string Read(Call call) const;
  template <class... Text>
  std::string ReadByKeys(std::uint32_t ordinal, const Text&... keys) const;
  void Replace(std::uint32_t removeOrdinal, std::uint32_t storeOrdinal, const std::string& key,
               const std::string& document);

  bool m_bound = false;
  norvik_handle m_module = 0;
  norvik::FunctionTable functions_;
};

/// Set by InitModule, null after Release.
extern PubInfoIntf* g_pPubInfo;
