#include "host/excel.h"

#include "host/keys.h"
#include "host/ordinals.h"

using norvik::Outgoing;

namespace {

// The texts of one export, each without a NUL.
struct Texts {
  Texts(const std::string& path, const corvane::Row& headRow, const corvane::List& columnList,
        const corvane::List& dataList)
      : head(headRow.toString()), columns(columnList.toString()), data(dataList.toString()) {
    Outgoing(path);
    Outgoing(head);
    Outgoing(columns);
    Outgoing(data);
  }

  std::string head, columns, data;
};

}  // namespace

ExcelIntf::ExcelIntf(norvik_handle module) : m_module(module) {
  if (!functions_.Resolve(m_module, norvik::ordinals::kExcel))
    throw corvane::TException(norvik::key::kExcelIncomplete);
}

void ExcelIntf::ExportExcel(const std::string& path, const corvane::Row& head, const corvane::List& columns,
                            const corvane::List& data) const {
  using Export = std::uint8_t(const char*, const char*, const char*, const char*, char*);
  const auto write = functions_.Function<Export>(norvik::ordinals::kExportWorkbook);
  const Texts texts(path, head, columns, data);
  norvik::Order([&](char* error) {
    return write(path.c_str(), texts.head.c_str(), texts.columns.c_str(), texts.data.c_str(), error);
  });
}

void ExcelIntf::ExportText(const std::string& path, const corvane::Row& head, const corvane::List& columns,
                           const corvane::List& data, const std::string& separator,
                           std::int32_t option) const {
  using Export =
      std::uint8_t(const char*, const char*, const char*, const char*, const char*, char*, std::int32_t);
  const auto write = functions_.Function<Export>(norvik::ordinals::kExportText);
  const Texts texts(path, head, columns, data);
  const char* const between = Outgoing(separator);
  norvik::Order([&](char* error) {
    return write(path.c_str(), texts.head.c_str(), texts.columns.c_str(), texts.data.c_str(), between, error,
                 option);
  });
}
