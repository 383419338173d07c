#include "platform/bank_directory.h"

#include <exception>

#include "platform/handle_table.h"

namespace norvik {
namespace {

struct BankDirectory : HandleObject {
  explicit BankDirectory(const norvik_bank_directory& directory) : functions(directory) {}
  norvik_bank_directory functions;
};

}  // namespace

std::optional<norvik_bank_directory> FindBankDirectory(norvik_handle directory) noexcept {
  const auto found = FindHandleOf<BankDirectory>(directory);
  if (!found) return std::nullopt;
  return found->functions;
}

}  // namespace norvik

norvik_handle norvik_bank_directory_register(const norvik_bank_directory* directory) {
  if (!directory || !directory->top_code || !directory->has_area || !directory->bank_name) return 0;
  try {
    return norvik::PutHandle(std::make_shared<norvik::BankDirectory>(*directory));
  } catch (const std::exception&) {
    return 0;
  }
}

void norvik_bank_directory_unregister(norvik_handle directory) {
  norvik::CloseHandleOf<norvik::BankDirectory>(directory);
}
