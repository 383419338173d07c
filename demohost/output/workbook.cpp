#include "demohost/output/workbook.h"

#include <xlsxwriter.h>

#include <algorithm>
#include <charconv>
#include <utility>

#include "demohost/calendar.h"
#include "demohost/refusals.h"
#include "demohost/text_file.h"
#include "demohost/words.h"

namespace demohost {
namespace {

// Pixels of one character of the workbook's standard font, by which its columns are measured.
constexpr double kCharacter = 7.0;

// What a workbook's numbers hold without loss.
constexpr std::ptrdiff_t kMaxDigits = 15;

// The whole text as a number; false for anything else, and for a number of more digits than a workbook keeps.
bool NumberOf(const std::string& text, double& number) {
  if (std::ranges::count_if(text, [](char c) { return c >= '0' && c <= '9'; }) > kMaxDigits) return false;
  const char* end = text.data() + text.size();
  const auto result = std::from_chars(text.data(), end, number, std::chars_format::fixed);
  return !text.empty() && result.ec == std::errc() && result.ptr == end;
}

// A workbook being written; its file is removed where Finish isn't reached.
class Workbook {
 public:
  explicit Workbook(const std::filesystem::path& file) : file_(file), book_(workbook_new(file.c_str())) {
    if (book_ == nullptr) throw Refused(refusal::kNotExported, file.string());
    sheet_ = workbook_add_worksheet(book_, nullptr);
    title_ = Format();
    format_set_bold(title_);
    format_set_font_size(title_, 14);
    caption_ = Format();
    format_set_bold(caption_);
    format_set_bottom(caption_, LXW_BORDER_THIN);
    format_set_bg_color(caption_, 0xE7EDF5);
    text_ = Format();
    format_set_num_format(text_, "@");
    right_ = Format();
    format_set_num_format(right_, "@");
    format_set_align(right_, LXW_ALIGN_RIGHT);
    amount_ = Format();
    format_set_num_format(amount_, "#,##0.00");
    number_ = Format();
    format_set_num_format(number_, "0");
    date_ = Format();
    format_set_num_format(date_, "yyyy-mm-dd");
    format_set_align(date_, LXW_ALIGN_CENTER);
  }
  ~Workbook() {
    if (book_ == nullptr) return;
    workbook_close(book_);
    std::error_code ignored;
    std::filesystem::remove(file_, ignored);
  }
  Workbook(const Workbook&) = delete;
  Workbook& operator=(const Workbook&) = delete;

  void Write(const ExportSheet& sheet) {
    WriteText(0, 0, sheet.title, title_);
    lxw_row_t row = 1;
    for (const auto& [name, value] : sheet.head) {
      WriteText(row, 0, name, nullptr);
      WriteText(row++, 1, value, nullptr);
    }
    ++row;
    for (std::size_t at = 0; at < sheet.columns.size(); ++at) {
      const auto column = static_cast<lxw_col_t>(at);
      const double width = std::clamp(sheet.columns[at].width / kCharacter, 8.0, 60.0);
      worksheet_set_column(sheet_, column, column, width, nullptr);
      WriteText(row, column, sheet.columns[at].caption, caption_);
    }
    worksheet_freeze_panes(sheet_, ++row, 0);
    for (const std::vector<std::string>& cells : sheet.rows) {
      for (std::size_t at = 0; at < cells.size(); ++at) {
        WriteCell(row, static_cast<lxw_col_t>(at), cells[at], sheet.columns[at]);
      }
      ++row;
    }
  }

  void Finish() {
    const lxw_error error = workbook_close(std::exchange(book_, nullptr));
    if (error == LXW_NO_ERROR) return;
    std::error_code ignored;
    std::filesystem::remove(file_, ignored);
    throw Refused(refusal::kNotExported, lxw_strerror(error));
  }

 private:
  lxw_format* Format() { return workbook_add_format(book_); }

  void Check(lxw_error error) {
    if (error != LXW_NO_ERROR) throw Refused(refusal::kNotExported, lxw_strerror(error));
  }

  void WriteText(lxw_row_t row, lxw_col_t column, const std::string& text, lxw_format* format) {
    Check(worksheet_write_string(sheet_, row, column, text.c_str(), format));
  }

  void WriteCell(lxw_row_t row, lxw_col_t column, const std::string& text, const ExportColumn& definition) {
    double number = 0;
    if (definition.kind == CellKind::kDate) {
      if (const auto day = DayOf(text)) {
        const std::chrono::year_month_day date{*day};
        lxw_datetime value = {static_cast<int>(date.year()),
                              static_cast<int>(static_cast<unsigned>(date.month())),
                              static_cast<int>(static_cast<unsigned>(date.day())),
                              0,
                              0,
                              0};
        return Check(worksheet_write_datetime(sheet_, row, column, &value, date_));
      }
    } else if (definition.kind != CellKind::kText && NumberOf(text, number)) {
      return Check(worksheet_write_number(sheet_, row, column, number,
                                          definition.kind == CellKind::kAmount ? amount_ : number_));
    }
    WriteText(row, column, text, definition.right ? right_ : text_);
  }

  std::filesystem::path file_;
  lxw_workbook* book_;
  lxw_worksheet* sheet_;
  lxw_format *title_, *caption_, *text_, *right_, *amount_, *number_, *date_;
};

}  // namespace

std::filesystem::path WriteWorkbook(const std::filesystem::path& path, const ExportSheet& sheet,
                                    const std::function<bool(const std::filesystem::path&)>& mayReplace) {
  std::filesystem::path target = path;
  std::error_code error;
  if (LowerAscii(path.extension().string()) == ".xls") {
    target.replace_extension(".xlsx");
    if (std::filesystem::exists(target, error)) {
      if (!mayReplace) throw Refused(refusal::kNotExported, target.string());
      if (!mayReplace(target)) return {};
    }
  }
  const std::filesystem::path beside = PlaceBeside(target);
  Workbook workbook(beside);
  workbook.Write(sheet);
  workbook.Finish();
  std::filesystem::rename(beside, target, error);
  if (error) throw Refused(refusal::kNotExported, target.string() + ": " + error.message());
  return target;
}

}  // namespace demohost
