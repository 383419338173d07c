#include "demohost/output/report.h"

#include <QFontMetricsF>
#include <QGuiApplication>
#include <QPainter>
#include <QPdfWriter>
#include <algorithm>
#include <functional>

#include "demohost/refusals.h"
#include "demohost/text_file.h"
#include "demohost/words.h"

namespace demohost {
namespace {

constexpr int kDotsPerInch = 300;
// Pixels of a column's width are those of a screen of 96 dots an inch, made smaller to bring more onto a
// page.
constexpr double kColumnScale = kDotsPerInch / 96.0 * 0.72;

// The columns of one page: from first to last - 1.
struct Band {
  std::size_t first, last;
};

class Report {
 public:
  Report(QPdfWriter& writer, const ExportSheet& sheet)
      : sheet_(sheet), painter_(&writer), writer_(writer), width_(writer.width()), height_(writer.height()) {
    QFont font = QGuiApplication::font();
    font.setPointSizeF(7.5);
    painter_.setFont(font);
    line_ = QFontMetricsF(font, &writer).height() * 1.25;
  }

  void Paint() {
    const std::size_t fitting = RowsOnPage();
    const std::size_t sheets = std::max<std::size_t>(1, (sheet_.rows.size() + fitting - 1) / fitting);
    const std::vector<Band> bands = Bands();
    const std::size_t pages = bands.size() * sheets;
    std::size_t page = 0;
    for (const Band& band : bands) {
      for (std::size_t number = 0; number < sheets; ++number) {
        if (page++ > 0) writer_.newPage();
        PaintPage(band, number * fitting, fitting, QStringLiteral("%1 / %2").arg(page).arg(pages));
      }
    }
  }

 private:
  double ColumnWidth(std::size_t column) const {
    return std::min<double>(std::max(sheet_.columns[column].width, 40) * kColumnScale, width_);
  }

  std::vector<Band> Bands() const {
    std::vector<Band> bands = {{0, 0}};
    double used = 0;
    for (std::size_t column = 0; column < sheet_.columns.size(); ++column) {
      used += ColumnWidth(column);
      if (used > width_ && column > bands.back().first) {
        bands.push_back({column, column});
        used = ColumnWidth(column);
      }
      bands.back().last = column + 1;
    }
    return bands;
  }

  // Lines above the rows: the title of two, the head, a gap and the captions.
  double HeadLines() const { return 4.0 + static_cast<double>(sheet_.head.size()); }

  std::size_t RowsOnPage() const {
    const double rows = height_ / line_ - HeadLines() - 2;
    return static_cast<std::size_t>(std::max(rows, 1.0));
  }

  void Text(double x, double y, double width, int flags, const QString& text) {
    const double gap = line_ / 5;
    const QRectF cell(x + gap, y, width - 2 * gap, line_);
    painter_.drawText(
        cell, flags | Qt::AlignVCenter | Qt::TextSingleLine,
        painter_.fontMetrics().elidedText(text, Qt::ElideRight, static_cast<int>(cell.width())));
  }

  void PaintRow(const Band& band, double y, const std::function<QString(std::size_t)>& cell) {
    double x = 0;
    for (std::size_t column = band.first; column < band.last; ++column) {
      const double width = ColumnWidth(column);
      Text(x, y, width, sheet_.columns[column].right ? Qt::AlignRight : Qt::AlignLeft, cell(column));
      x += width;
    }
    painter_.drawLine(QPointF(0, y + line_), QPointF(x, y + line_));
  }

  void PaintPage(const Band& band, std::size_t first, std::size_t count, const QString& number) {
    double y = 0;
    painter_.save();
    QFont bold = painter_.font();
    bold.setBold(true);
    bold.setPointSizeF(12);
    painter_.setFont(bold);
    painter_.drawText(QRectF(0, y, width_, 2 * line_), Qt::AlignCenter, ToQt(sheet_.title));
    painter_.restore();
    y += 2 * line_;
    for (const auto& [name, value] : sheet_.head) {
      Text(0, y, width_, Qt::AlignLeft, ToQt(value.empty() ? name : name + ": " + value));
      y += line_;
    }
    y += line_;
    painter_.fillRect(QRectF(0, y, width_, line_), QColor(0xE7, 0xED, 0xF5));
    PaintRow(band, y, [this](std::size_t column) { return ToQt(sheet_.columns[column].caption); });
    const std::size_t last = std::min(first + count, sheet_.rows.size());
    for (std::size_t row = first; row < last; ++row) {
      y += line_;
      PaintRow(band, y, [&](std::size_t column) { return ToQt(sheet_.rows[row][column]); });
    }
    painter_.drawText(QRectF(0, height_ - line_, width_, line_), Qt::AlignCenter, number);
  }

  const ExportSheet& sheet_;
  QPainter painter_;
  QPdfWriter& writer_;
  double width_, height_, line_ = 0;
};

}  // namespace

void WriteReport(const std::filesystem::path& path, const ExportSheet& sheet, const ReportPaper& paper) {
  std::error_code error;
  std::filesystem::create_directories(path.parent_path(), error);
  const std::filesystem::path beside = PlaceBeside(path);
  {
    QPdfWriter writer(QString::fromStdString(beside.string()));
    writer.setResolution(kDotsPerInch);
    writer.setTitle(ToQt(sheet.title));
    writer.setPageSize(QPageSize(paper.a3 ? QPageSize::A3 : QPageSize::A4));
    writer.setPageOrientation(paper.landscape ? QPageLayout::Landscape : QPageLayout::Portrait);
    writer.setPageMargins(QMarginsF(12, 12, 12, 12), QPageLayout::Millimeter);
    Report report(writer, sheet);
    report.Paint();
  }
  std::filesystem::rename(beside, path, error);
  if (error) throw Refused(refusal::kNotPrinted, path.string() + ": " + error.message());
}

}  // namespace demohost
