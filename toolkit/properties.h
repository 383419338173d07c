// Published properties by name, for code that treats controls of all classes alike: captions, fonts and skins
// of a whole form. Only properties that the layer's own classes publish are seen; those of Qt's classes are
// not. A null object has none. Reading or writing one that isn't there throws std::invalid_argument.
#pragma once

#include <cstdint>
#include <string>

#include "toolkit/types.h"

/// Whether the object has the property.
bool IsPublishedProp(const TObject* object, const char* name);
/// Value of a text property, narrow.
std::string GetStrProp(const TObject* object, const char* name);
/// Writes a text property.
void SetStrProp(TObject* object, const char* name, const std::string& value);
/// Value of an object property; the object's owner stays what it is.
TObject* GetObjectProp(const TObject* object, const char* name);
/// Writes an object property.
void SetObjectProp(TObject* object, const char* name, TObject* value);
/// Number of a whole-number, enumeration or boolean property.
std::int64_t GetOrdProp(const TObject* object, const char* name);
/// Writes a whole-number, enumeration or boolean property; a boolean one becomes true for any number but 0.
void SetOrdProp(TObject* object, const char* name, std::int64_t value);
/// Writes a boolean or whole-number property.
void SetPropValue(TObject* object, const char* name, bool value);
