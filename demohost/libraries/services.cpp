#include "demohost/libraries/services.h"

#include "demohost/client_data.h"

namespace demohost {

Services& CurrentServices() {
  static Services services;
  return services;
}

std::string CurrentLanguage() {
  const InfoStore* store = CurrentServices().store;
  return store ? SettingOf(*store, kLanguageSetting) : std::string();
}

std::string CurrentText(std::string_view key) {
  const Services& services = CurrentServices();
  if (services.texts == nullptr || services.faults.texts.contains(key)) return {};
  return std::string(services.texts->Find(CurrentLanguage(), key));
}

}  // namespace demohost
