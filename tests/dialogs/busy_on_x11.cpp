#include "tests/dialogs/busy_on_x11.h"

#include <gtest/gtest.h>
#include <xcb/xcb.h>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QProcess>
#include <QPushButton>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <thread>

#include "dialogs/busy.h"
#include "dialogs/busy_form.h"
#include "tests/support/form_host.h"
#include "toolkit/application.h"

namespace {

using std::chrono::milliseconds;

/// A client of its own, as another program would be.
class Client {
 public:
  Client() : connection_(xcb_connect(nullptr, nullptr)) {}
  Client(const Client&) = delete;
  Client& operator=(const Client&) = delete;
  ~Client() { xcb_disconnect(connection_); }

  std::string PictureOf(xcb_window_t window) {
    const std::unique_ptr<xcb_get_geometry_reply_t, decltype(&std::free)> size(
        xcb_get_geometry_reply(connection_, xcb_get_geometry(connection_, window), nullptr), &std::free);
    if (!size) return {};
    const auto cookie =
        xcb_get_image(connection_, XCB_IMAGE_FORMAT_Z_PIXMAP, window, 0, 0, size->width, size->height, ~0U);
    const std::unique_ptr<xcb_get_image_reply_t, decltype(&std::free)> image(
        xcb_get_image_reply(connection_, cookie, nullptr), &std::free);
    if (!image) return {};
    return {reinterpret_cast<const char*>(xcb_get_image_data(image.get())),
            static_cast<std::size_t>(xcb_get_image_data_length(image.get()))};
  }

  void ClickAt(xcb_window_t window, std::int16_t x, std::int16_t y) {
    xcb_button_press_event_t event = {};
    event.event = window;
    event.root = xcb_setup_roots_iterator(xcb_get_setup(connection_)).data->root;
    event.detail = XCB_BUTTON_INDEX_1;
    event.same_screen = 1;
    event.event_x = event.root_x = x;
    event.event_y = event.root_y = y;
    for (const int type : {XCB_BUTTON_PRESS, XCB_BUTTON_RELEASE}) {
      event.response_type = static_cast<std::uint8_t>(type);
      event.state = type == XCB_BUTTON_RELEASE ? std::uint16_t{XCB_BUTTON_MASK_1} : std::uint16_t{0};
      xcb_send_event(connection_, 0, window, 0, reinterpret_cast<const char*>(&event));
    }
    std::free(xcb_get_input_focus_reply(connection_, xcb_get_input_focus(connection_), nullptr));
  }

 private:
  xcb_connection_t* connection_;
};

/// Pumps messages for some milliseconds, or until the count has left 0.
void PumpFor(int time, const int& count = 0) {
  QElapsedTimer clock;
  clock.start();
  while (clock.elapsed() < time && count == 0) QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
}

}  // namespace

int RunBusyOnX11() {
  FormHost host;
  QPushButton button("press", &host.mainWindow);
  button.setGeometry(0, 0, 200, 100);
  int pressed = 0;
  QObject::connect(&button, &QPushButton::clicked, [&] { ++pressed; });
  host.mainWindow.resize(200, 100);
  host.mainWindow.show();
  PumpFor(200);
  TForm* owner = CreateForm<TForm>(Application);
  const auto mainId = static_cast<xcb_window_t>(host.mainWindow.winId());
  Client().ClickAt(mainId, 20, 20);
  PumpFor(5000, pressed);
  std::printf("clicks before: %d\n", pressed);

  pressed = 0;
  ShowBar(owner);
  TForm* bar = ShownForm(TBarForm::staticMetaObject);
  if (bar == nullptr) return 2;
  const auto barId = static_cast<xcb_window_t>(bar->Widget()->winId());
  bool moved = false;
  std::thread watcher([&] {
    Client client;
    std::this_thread::sleep_for(milliseconds(300));
    const std::string first = client.PictureOf(barId);
    client.ClickAt(mainId, 20, 20);
    for (int look = 0; look < 100 && !moved && !first.empty(); ++look) {
      std::this_thread::sleep_for(milliseconds(100));
      moved = client.PictureOf(barId) != first;
    }
  });
  watcher.join();  // the exchange: this thread stands still, without any message
  HideBar(owner);
  PumpFor(300);
  std::printf("pictures: %s\nclicks during: %d\n", moved ? "different" : "equal", pressed);
  Client().ClickAt(mainId, 20, 20);
  PumpFor(5000, pressed);
  std::printf("clicks after: %d\n", pressed);
  return 0;
}

namespace {

TEST(BusyOnX11, MovesAndSwallowsClicksWhileTheThreadIsBlocked) {
  for (const char* depth : {"800x600x24", "800x600x16"}) {
    QProcess server;
    server.start("Xvfb", {"-displayfd", "1", "-screen", "0", depth, "-nolisten", "tcp"});
    if (!server.waitForStarted()) GTEST_SKIP() << "there is no Xvfb to show the form on";
    ASSERT_TRUE(server.waitForReadyRead(20000)) << server.readAllStandardError().toStdString();
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("DISPLAY", ":" + server.readLine().trimmed());
    environment.insert("QT_QPA_PLATFORM", "xcb");
    QProcess program;
    program.setProcessEnvironment(environment);
    program.start(QCoreApplication::applicationFilePath(), {kBusyOnX11});
    EXPECT_TRUE(program.waitForFinished(30000)) << depth;
    EXPECT_EQ(program.exitCode(), 0) << program.readAllStandardError().toStdString();
    EXPECT_EQ(program.readAllStandardOutput().toStdString(),
              "clicks before: 1\npictures: different\nclicks during: 0\nclicks after: 1\n")
        << depth << "\n"
        << program.readAllStandardError().toStdString();
    program.kill();
    program.waitForFinished();
    server.terminate();
    server.waitForFinished();
  }
}

}  // namespace
