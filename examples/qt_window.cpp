// A window of Qt 6 with the control in it, and a button for each thing that its user does. With
// --quit it closes at once, which tells that it can start.
#include <QApplication>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

#include "array_device.h"
#include "quorvel/main_menu_ctrl.h"
#include "quorvel/qt_control_surface.h"
#include "quorvel/qt_platform.h"

namespace {

class Window : public QWidget, public quorvel::MainMenuEvents {
 public:
  explicit Window(quorvel::QtPlatform& platform) : control_(platform, *this) {
    control_.InitProperties();
    control_.Custom(18, 48, 1);
    control_.SaveConnectedInfo(ArrayDevice::Identity());

    auto* const column = new QVBoxLayout(this);
    column->addWidget(&surface_);
    AddButton("Download", [this] { control_.Custom(10, 0, 0); });
    auto* const menu = AddButton("Menu", [this] { control_.Custom(15, 1, 0); });
    AddButton("Upload", [this] { control_.Custom(11, 0, 0); });
    platform.SetHostWindow(this);
    platform.SetMenuButton(menu);
  }

  void RequestBlk(std::uint8_t number) override { control_.FillDataBlk(device_.Read(number)); }
  void DownLoadData(std::span<std::uint8_t> packet) override {
    device_.Write(packet);
    control_.TriggerUploadTimer();
  }

 private:
  template <class Act>
  QPushButton* AddButton(const char* caption, Act act) {
    auto* const button = new QPushButton(caption);
    layout()->addWidget(button);
    connect(button, &QPushButton::clicked, this, act);
    return button;
  }

  ArrayDevice device_;
  quorvel::MainMenuCtrl control_;
  quorvel::ControlSurfaceWidget surface_{control_.Surface()};  // goes before the control
};

}  // namespace

int main(int argc, char** argv) {
  const QApplication application(argc, argv);
  quorvel::QtPlatform platform;
  Window window(platform);
  window.show();
  if (QApplication::arguments().contains("--quit")) QTimer::singleShot(0, &QApplication::quit);
  return QApplication::exec();
}
