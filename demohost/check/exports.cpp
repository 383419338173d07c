#include "demohost/check/exports.h"

#include <elf.h>

#include <cstdint>
#include <cstring>
#include <string_view>

#include "demohost/text_file.h"

namespace demohost::check {
namespace {

// The structure at an offset; nothing where it doesn't lie in the file whole.
template <class Structure>
std::optional<Structure> At(std::string_view file, std::uint64_t offset) {
  if (offset > file.size() || file.size() - offset < sizeof(Structure)) return std::nullopt;
  Structure structure;
  std::memcpy(&structure, file.data() + offset, sizeof structure);
  return structure;
}

std::optional<Elf64_Shdr> Section(std::string_view file, const Elf64_Ehdr& header, std::uint32_t index) {
  if (index >= header.e_shnum || header.e_shoff > file.size()) return std::nullopt;
  return At<Elf64_Shdr>(file, header.e_shoff + std::uint64_t{index} * header.e_shentsize);
}

std::optional<std::string> NameAt(std::string_view file, const Elf64_Shdr& names, std::uint32_t offset) {
  if (names.sh_offset > file.size() || offset >= file.size() - names.sh_offset) return std::nullopt;
  const std::string_view rest = file.substr(names.sh_offset + offset);
  const std::size_t end = rest.find('\0');
  if (end == std::string_view::npos) return std::nullopt;
  return std::string(rest.substr(0, end));
}

// The gABI's rules for a symbol that others can bind to.
bool IsExported(const Elf64_Sym& symbol) {
  const auto visibility = ELF64_ST_VISIBILITY(symbol.st_other);
  return symbol.st_shndx != SHN_UNDEF && ELF64_ST_BIND(symbol.st_info) != STB_LOCAL &&
         (visibility == STV_DEFAULT || visibility == STV_PROTECTED);
}

std::optional<std::set<std::string>> ExportsIn(std::string_view file, const Elf64_Shdr& table,
                                               const Elf64_Shdr& names) {
  std::set<std::string> exports;
  for (std::uint64_t at = 0; at + sizeof(Elf64_Sym) <= table.sh_size; at += sizeof(Elf64_Sym)) {
    const auto symbol = At<Elf64_Sym>(file, table.sh_offset + at);
    if (!symbol) return std::nullopt;
    if (!IsExported(*symbol)) continue;
    auto name = NameAt(file, names, symbol->st_name);
    if (!name) return std::nullopt;
    exports.insert(std::move(*name));
  }
  return exports;
}

}  // namespace

std::optional<std::set<std::string>> ExportsOf(const std::filesystem::path& library) {
  const std::string file = ReadFile(library);
  const auto header = At<Elf64_Ehdr>(file, 0);
  if (!header || std::memcmp(header->e_ident, ELFMAG, SELFMAG) != 0 ||
      header->e_ident[EI_CLASS] != ELFCLASS64) {
    return std::nullopt;
  }
  for (std::uint32_t index = 0; index < header->e_shnum; ++index) {
    const auto table = Section(file, *header, index);
    if (!table) return std::nullopt;
    if (table->sh_type != SHT_DYNSYM) continue;
    const auto names = Section(file, *header, table->sh_link);
    return names ? ExportsIn(file, *table, *names) : std::nullopt;
  }
  return std::nullopt;
}

}  // namespace demohost::check
