// The pictures that the layer draws by itself, so that no file is needed beside the module. Image lists and
// the message dialogs show them; pictures from files are in image_list.h.
#pragma once

#include <QIcon>
#include <QPixmap>
#include <functional>

/// Pictures that the layer draws by itself.
enum TStockImage {
  siNone,
  siWarning,
  siInformation,
  siQuestion,
  siError,
  siQuery,
  siPrint,
  siPrintSetup,
  siExport,
  siColumns,
  siDesktop,
  siSynchronize,
  siReason,
  siSum,
  siDetail,
  siAudit,
  siDelete,
  siClose,
  siCalendar,
  siClock,
  siBill,
  siUp,
  siDown
};

/// One of the stock pictures at a size in pixels.
QPixmap StockPixmap(TStockImage image, int size);

/// One of the stock pictures, drawn at the size that it is asked for in.
QIcon StockIcon(TStockImage image);

/// An icon that has no picture of its own: `make` gives one of at most a size in pixels each time that one is
/// drawn.
QIcon MadeIcon(std::function<QPixmap(const QSize& size)> make);
