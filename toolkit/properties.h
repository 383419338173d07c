#pragma once

#include <cstdint>
#include <string>

#include "toolkit/types.h"

/// Access to published properties by name. Only properties that the layer's own classes publish are seen;
/// those of Qt's classes are not. A null object has none. Reading or writing one that isn't there throws
/// std::invalid_argument.

/// Whether the object has the property.
bool IsPublishedProp(const TObject* object, const char* name);
std::string GetStrProp(const TObject* object, const char* name);
void SetStrProp(TObject* object, const char* name, const std::string& value);
TObject* GetObjectProp(const TObject* object, const char* name);
void SetObjectProp(TObject* object, const char* name, TObject* value);
/// Number of a whole-number, enumeration or boolean property.
std::int64_t GetOrdProp(const TObject* object, const char* name);
void SetOrdProp(TObject* object, const char* name, std::int64_t value);
/// Writes a boolean or whole-number property.
void SetPropValue(TObject* object, const char* name, bool value);
