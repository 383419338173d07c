#include "toolkit/stock_images.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QStyle>
#include <QStyleOption>
#include <algorithm>
#include <utility>

namespace {

// A picture that is made when it is asked for. Qt's own engine would put each into the process's pixmap
// cache, which goes on holding it when the module has gone.
class PictureEngine : public QIconEngine {
 public:
  using Make = std::function<QPixmap(const QSize& size)>;

  explicit PictureEngine(Make make) : make_(std::move(make)) {}

  QIconEngine* clone() const override { return new PictureEngine(make_); }

  void paint(QPainter* painter, const QRect& area, QIcon::Mode mode, QIcon::State state) override {
    const QSize size = area.size() * painter->device()->devicePixelRatio();
    painter->drawPixmap(area, pixmap(size, mode, state));
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override {
    QPixmap picture = make_(size);
    if (mode == QIcon::Normal || mode == QIcon::Active) return picture;
    QStyleOption option;
    option.palette = QGuiApplication::palette();
    return QApplication::style()->generatedIconPixmap(mode, picture, &option);
  }

 private:
  Make make_;
};

// All pictures are drawn on a field of 16 by 16.
const QColor kInk(0x34, 0x4F, 0x72);
const QColor kAccent(0x2F, 0x6D, 0xB5);
const QColor kAmber(0xE0, 0x9A, 0x1B);
const QColor kRed(0xC8, 0x3A, 0x3A);
const QColor kGreen(0x3A, 0x8F, 0x5C);
const QColor kPaper(0xFF, 0xFF, 0xFF);

void Outline(QPainter& painter, const QColor& ink, const QColor& fill = Qt::transparent, qreal width = 1.2) {
  painter.setPen(QPen(ink, width, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  painter.setBrush(fill);
}

void Sign(QPainter& painter, const QColor& color, const char* letter) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(color);
  painter.drawEllipse(QRectF(1, 1, 14, 14));
  QFont font = painter.font();
  font.setPixelSize(11);
  font.setBold(true);
  painter.setFont(font);
  painter.setPen(kPaper);
  painter.drawText(QRectF(0, 0, 16, 16), Qt::AlignCenter, QLatin1String(letter));
}

void Warning(QPainter& painter) {
  Outline(painter, kAmber, kAmber);
  painter.drawPolygon(QPolygonF({{8, 1.5}, {15, 14}, {1, 14}}));
  Outline(painter, kPaper, kPaper, 1.8);
  painter.drawLine(QPointF(8, 6), QPointF(8, 9.5));
  painter.drawPoint(QPointF(8, 12));
}

void Glass(QPainter& painter) {
  Outline(painter, kAccent, kPaper, 1.6);
  painter.drawEllipse(QPointF(6.5, 6.5), 4.5, 4.5);
  painter.drawLine(QPointF(10, 10), QPointF(14, 14));
}

void Printer(QPainter& painter) {
  Outline(painter, kInk, kPaper);
  painter.drawRect(QRectF(4, 1.5, 8, 5));
  painter.setBrush(QColor(0xC9, 0xD6, 0xE6));
  painter.drawRoundedRect(QRectF(1.5, 6, 13, 5.5), 1, 1);
  painter.setBrush(kPaper);
  painter.drawRect(QRectF(4, 9.5, 8, 5));
}

void PrinterSetup(QPainter& painter) {
  Printer(painter);
  Outline(painter, kAmber, kPaper, 1.6);
  painter.drawEllipse(QPointF(11.5, 11.5), 2.6, 2.6);
}

void Sheet(QPainter& painter) {
  Outline(painter, kInk, kPaper);
  painter.drawPolygon(QPolygonF({{3, 1.5}, {10, 1.5}, {13, 4.5}, {13, 14.5}, {3, 14.5}}));
}

void Export(QPainter& painter) {
  Sheet(painter);
  Outline(painter, kGreen, Qt::transparent, 1.8);
  painter.drawLine(QPointF(8, 6), QPointF(8, 12));
  painter.drawPolyline(QPolygonF({{5.5, 9.5}, {8, 12}, {10.5, 9.5}}));
}

void Columns(QPainter& painter) {
  Outline(painter, kInk, kPaper);
  painter.drawRect(QRectF(1.5, 2.5, 13, 11));
  painter.fillRect(QRectF(6, 3, 4, 10), QColor(0xA9, 0xC6, 0xE8));
  painter.drawLine(QPointF(6, 2.5), QPointF(6, 13.5));
  painter.drawLine(QPointF(10, 2.5), QPointF(10, 13.5));
  painter.drawLine(QPointF(1.5, 5.5), QPointF(14.5, 5.5));
}

void Desktop(QPainter& painter) {
  Outline(painter, kInk, QColor(0xDC, 0xE9, 0xF7));
  painter.drawRoundedRect(QRectF(1.5, 2.5, 13, 8.5), 1, 1);
  painter.drawLine(QPointF(8, 11), QPointF(8, 14));
  painter.drawLine(QPointF(5, 14), QPointF(11, 14));
}

void Synchronize(QPainter& painter) {
  Outline(painter, kGreen, Qt::transparent, 1.7);
  painter.drawArc(QRectF(2.5, 2.5, 11, 11), 30 * 16, 140 * 16);
  painter.drawArc(QRectF(2.5, 2.5, 11, 11), 210 * 16, 140 * 16);
  painter.drawPolyline(QPolygonF({{10.5, 5.5}, {13, 5.5}, {13, 3}}));
  painter.drawPolyline(QPolygonF({{5.5, 10.5}, {3, 10.5}, {3, 13}}));
}

void Reason(QPainter& painter) {
  Outline(painter, kInk, kPaper);
  painter.drawRoundedRect(QRectF(1.5, 2, 13, 9), 2, 2);
  painter.drawPolyline(QPolygonF({{5, 11}, {5, 14}, {8, 11}}));
  painter.drawLine(QPointF(4.5, 5), QPointF(11.5, 5));
  painter.drawLine(QPointF(4.5, 8), QPointF(9.5, 8));
}

void Sum(QPainter& painter) {
  Outline(painter, kAccent, Qt::transparent, 1.9);
  painter.drawPolyline(
      QPolygonF({{12.5, 4}, {12.5, 2.5}, {4, 2.5}, {8.5, 8}, {4, 13.5}, {12.5, 13.5}, {12.5, 12}}));
}

void Detail(QPainter& painter) {
  Sheet(painter);
  for (const qreal y : {6.0, 8.5, 11.0}) painter.drawLine(QPointF(5.5, y), QPointF(10.5, y));
}

void Audit(QPainter& painter) {
  Sheet(painter);
  Outline(painter, kGreen, Qt::transparent, 2);
  painter.drawPolyline(QPolygonF({{5, 9}, {7.3, 11.5}, {11, 6.5}}));
}

void Cross(QPainter& painter) {
  Outline(painter, kRed, Qt::transparent, 2);
  painter.drawLine(QPointF(4, 4), QPointF(12, 12));
  painter.drawLine(QPointF(12, 4), QPointF(4, 12));
}

void Calendar(QPainter& painter) {
  Outline(painter, kInk, kPaper);
  painter.drawRect(QRectF(2, 3, 12, 11));
  painter.fillRect(QRectF(2.5, 3.5, 11, 3), kAccent);
  for (const qreal x : {5.0, 8.0, 11.0}) {
    for (const qreal y : {9.0, 11.5}) painter.drawPoint(QPointF(x, y));
  }
}

void Clock(QPainter& painter) {
  Outline(painter, kInk, kPaper);
  painter.drawEllipse(QRectF(1.5, 1.5, 13, 13));
  painter.drawPolyline(QPolygonF({{8, 4}, {8, 8}, {11, 9.5}}));
}

void Bill(QPainter& painter) {
  Outline(painter, kInk, QColor(0xEA, 0xF2, 0xE6));
  painter.drawRect(QRectF(1.5, 3.5, 13, 9));
  Outline(painter, kRed, Qt::transparent, 1.2);
  painter.drawEllipse(QPointF(11, 9), 2, 2);
  Outline(painter, kInk, Qt::transparent, 1);
  painter.drawLine(QPointF(3.5, 6), QPointF(9, 6));
  painter.drawLine(QPointF(3.5, 8.5), QPointF(7.5, 8.5));
}

void Arrow(QPainter& painter, bool up) {
  Outline(painter, kAccent, Qt::transparent, 2);
  const qreal tip = up ? 3 : 13;
  painter.drawLine(QPointF(8, 3), QPointF(8, 13));
  painter.drawPolyline(QPolygonF({{4, up ? 7.0 : 9.0}, {8, tip}, {12, up ? 7.0 : 9.0}}));
}

using Drawing = void (*)(QPainter&);
constexpr Drawing kDrawings[] = {
    [](QPainter&) {},
    Warning,
    [](QPainter& painter) { Sign(painter, kAccent, "i"); },
    [](QPainter& painter) { Sign(painter, kAccent, "?"); },
    [](QPainter& painter) { Sign(painter, kRed, "!"); },
    Glass,
    Printer,
    PrinterSetup,
    Export,
    Columns,
    Desktop,
    Synchronize,
    Reason,
    Sum,
    Detail,
    Audit,
    Cross,
    Cross,
    Calendar,
    Clock,
    Bill,
    [](QPainter& painter) { Arrow(painter, true); },
    [](QPainter& painter) { Arrow(painter, false); },
};
static_assert(std::size(kDrawings) == siDown + 1);

}  // namespace

QPixmap StockPixmap(TStockImage image, int size) {
  QPixmap picture(size, size);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(size / 16.0, size / 16.0);
  kDrawings[image](painter);
  return picture;
}

QIcon StockIcon(TStockImage image) {
  return MadeIcon(
      [image](const QSize& size) { return StockPixmap(image, std::min(size.width(), size.height())); });
}

QIcon MadeIcon(std::function<QPixmap(const QSize& size)> make) {
  return QIcon(new PictureEngine(std::move(make)));
}
