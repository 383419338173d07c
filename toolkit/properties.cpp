#include "toolkit/properties.h"

#include <QMetaProperty>
#include <QVariant>
#include <stdexcept>

#include "toolkit/text.h"

namespace {

// The property of a name; those of QObject itself, which come first in the meta-object, are left out.
QMetaProperty Find(const TObject* object, const char* name) {
  if (object == nullptr) return {};
  const QMetaObject* meta = object->metaObject();
  const int index = meta->indexOfProperty(name);
  return index < QObject::staticMetaObject.propertyCount() ? QMetaProperty() : meta->property(index);
}

QMetaProperty Require(const TObject* object, const char* name) {
  const QMetaProperty property = Find(object, name);
  if (!property.isValid()) throw std::invalid_argument(std::string("no such property: ") + name);
  return property;
}

void Write(TObject* object, const char* name, const QVariant& value) {
  if (!Require(object, name).write(object, value)) {
    throw std::invalid_argument(std::string("the property can't be written: ") + name);
  }
}

}  // namespace

bool IsPublishedProp(const TObject* object, const char* name) {
  return Find(object, name).isValid();
}

std::string GetStrProp(const TObject* object, const char* name) {
  return FromQt(Require(object, name).read(object).toString());
}

void SetStrProp(TObject* object, const char* name, const std::string& value) {
  Write(object, name, ToQt(value));
}

TObject* GetObjectProp(const TObject* object, const char* name) {
  return Require(object, name).read(object).value<QObject*>();
}

void SetObjectProp(TObject* object, const char* name, TObject* value) {
  Write(object, name, QVariant::fromValue<QObject*>(value));
}

std::int64_t GetOrdProp(const TObject* object, const char* name) {
  return Require(object, name).read(object).toLongLong();
}

void SetOrdProp(TObject* object, const char* name, std::int64_t value) {
  if (Require(object, name).typeId() == QMetaType::Bool) {
    Write(object, name, value != 0);
  } else {
    Write(object, name, static_cast<int>(value));
  }
}

void SetPropValue(TObject* object, const char* name, bool value) {
  SetOrdProp(object, name, value ? 1 : 0);
}
