#pragma once

#include "demohost/script/controls.h"
#include "demohost/script/operator.h"

namespace demohost {

template <class T>
T* Operator::ControlAs(const QString& name, const char* kind) const {
  QWidget* target = Target();
  if (T* control = FindControlAs<T>(target, name)) return control;
  Control(name);
  throw NotYet(QStringLiteral("%1 isn't a %2").arg(name, QLatin1String(kind)));
}

}  // namespace demohost
