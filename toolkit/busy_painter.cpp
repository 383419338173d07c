#include "toolkit/busy_painter.h"

#include <QByteArray>
#include <QGuiApplication>
#include <algorithm>
#include <chrono>
#include <condition_variable>
#include <cstdlib>
#include <mutex>
#include <thread>
#include <utility>

#include "toolkit/x11_picture.h"

namespace {

constexpr int kMinInterval = 10;  // milliseconds

// The connection of Qt to its X server, null where it does not run on X11.
xcb_connection_t* ToolkitConnection() {
  if (qGuiApp == nullptr) return nullptr;
  auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
  return x11 != nullptr ? x11->connection() : nullptr;
}

// Has the server take in all that the toolkit has sent, so that the window is there for another connection.
void Settle(xcb_connection_t* connection) {
  std::free(xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
}

}  // namespace

class TBusyPainter::Worker {
 public:
  Worker(xcb_window_t window, std::vector<QImage> frames, int interval)
      : window_(window),
        display_(qgetenv("DISPLAY")),
        frames_(std::move(frames)),
        interval_(std::max(interval, kMinInterval)),
        thread_([this] { Run(); }) {}

  ~Worker() {
    {
      const std::lock_guard lock(lock_);
      stop_ = true;
    }
    wake_.notify_all();
    thread_.join();
  }

  Worker(const Worker&) = delete;
  Worker& operator=(const Worker&) = delete;

 private:
  // What goes wrong between painter and display ends the moving, never the process.
  void Run() noexcept {
    xcb_connection_t* connection = xcb_connect(display_.isEmpty() ? nullptr : display_.constData(), nullptr);
    try {
      if (xcb_connection_has_error(connection) == 0) Show(connection);
    } catch (const std::exception&) {
      pictures_.clear();
    }
    xcb_disconnect(connection);
  }

  void Show(xcb_connection_t* connection) {
    const auto format = norvik::FindPixelFormat(connection, window_);
    if (!format) return;
    pictures_.resize(frames_.size());
    const xcb_gcontext_t context = xcb_generate_id(connection);
    xcb_create_gc(connection, context, window_, 0, nullptr);
    for (std::size_t turn = 0; Alive(connection); turn = (turn + 1) % pictures_.size()) {
      norvik::X11Picture& picture = pictures_[turn];
      if (picture.pixels.empty()) picture = norvik::MakePicture(frames_[turn], *format);
      norvik::PutPicture(connection, window_, context, format->depth, picture);
      xcb_flush(connection);
      if (!Wait()) return;
    }
  }

  // False once the server has refused a request, as it does when the window is gone.
  static bool Alive(xcb_connection_t* connection) {
    while (xcb_generic_event_t* event = xcb_poll_for_event(connection)) {
      const bool refused = event->response_type == 0;
      std::free(event);
      if (refused) return false;
    }
    return xcb_connection_has_error(connection) == 0;
  }

  // Waits for the next frame's time; false if the painter is to stop.
  bool Wait() {
    std::unique_lock lock(lock_);
    return !wake_.wait_for(lock, interval_, [this] { return stop_; });
  }

  const xcb_window_t window_;
  const QByteArray display_;  // read before the thread starts: the environment belongs to the starting thread
  const std::vector<QImage> frames_;
  const std::chrono::milliseconds interval_;
  std::vector<norvik::X11Picture> pictures_;
  std::mutex lock_;
  std::condition_variable wake_;
  bool stop_ = false;
  std::thread thread_;  // last: it uses all the others
};

TBusyPainter::TBusyPainter() = default;

TBusyPainter::~TBusyPainter() {
  Stop();
}

bool TBusyPainter::Available() {
  return ToolkitConnection() != nullptr;
}

bool TBusyPainter::Start(WId window, std::vector<QImage> frames, int interval) {
  Stop();
  std::erase_if(frames, [](const QImage& frame) { return frame.isNull(); });
  if (frames.empty() || window == 0 || !Available()) return false;
  Settle(ToolkitConnection());
  worker_ = std::make_unique<Worker>(static_cast<xcb_window_t>(window), std::move(frames), interval);
  return true;
}

void TBusyPainter::Stop() {
  worker_.reset();
}
