// What a Component tells of its settings in the words of its editors.
#include <memory>
#include <utility>

#include "core/factory_defaults.h"
#include "host/component.h"
#include "host/settings_file.h"
#include "quorvel/default_images.h"

namespace quorvel {

namespace {

Configuration Of(DecodedImage& decoded) {
  return {decoded.record, decoded.env.identity, decoded.image.BlkCount()};
}

/// The factory's image for a device with this identity.
std::unique_ptr<DecodedImage> FactoryImage(const Identity& id, std::string_view name, int blocks) {
  const DefaultsDevice device =
      NamedDevice(id.MaxCam, id.ModelCode, name, static_cast<char>(id.VariantChar));
  BlockImage image = LoadDefaultImage(FactoryImageOf(device.DefModelCode));
  AdaptToDevice(image, device, blocks);
  return std::make_unique<DecodedImage>(std::move(image));
}

}  // namespace

std::vector<ReviewLine> Component::Review() {
  if (!reviewer_.Prepare()) return {};
  const auto device = context.device.OfDevice();
  return reviewer_.Review(Of(*device));
}

FileReview Component::Review(std::span<const Byte> file) {
  FileReview review;
  try {
    if (!reviewer_.Prepare()) {
      review.cause = "no configuration has arrived";
      return review;
    }
    DecodedImage other(ReadSettingsFile(context.host, file).image);
    const Identity& present = context.device.env.identity;
    if (other.env.identity.ModelCode != present.ModelCode) {
      review.cause =
          "the file is of another model: " + std::string(ModelText(other.env.identity.ModelCode)) +
          ", not " + std::string(ModelText(present.ModelCode));
      return review;
    }
    // A file that is read locks the keyboard, whatever it was saved with.
    other.record.LockKeyBoard.Load(context.device.Record().LockKeyBoard());
    review.lines = reviewer_.Review(Of(other));
    review.compared = true;
  } catch (...) {
    review = {};
    review.cause = FailureReason();
  }
  return review;
}

std::vector<SettingRow> Component::AllSettings() {
  if (!reviewer_.Prepare()) return {};
  const auto device = context.device.OfDevice();
  const auto factory =
      FactoryImage(context.device.env.identity, context.device.Record().MuxModelName(),
                   context.device.BlkImage.BlkCount());
  return reviewer_.AllSettings(Of(*device), Of(*factory));
}

/// The blocks of a send that is under way are taken from the image as it is.
bool Component::TakeBack(const ReviewLine& line) {
  if (State().under_way == TransferKind::kSend) return false;
  const SettingPosition& at = line.at;
  const bool placed = !at.item.empty();
  std::string name = placed ? at.editor + ": " + at.label : "";
  if (!placed && !line.settings.empty()) name = line.settings.front();
  return context.device.TakeBack({std::move(name)}, line.settings, line.stored);
}

bool Component::OpenAt(const SettingPosition& position) {
  if (!HasImage() || position.item.empty()) return false;
  auto menu = frmMPop;
  if (menu == nullptr || menu->IsUnloaded()) {
    menu = std::make_shared<frm_Menu>(context);
    frmMPop = menu;
    menu->ActGridRequest = [this] { host_->ActGridPop(context.device.env.identity.MaxCam); };
    menu->LoadUnseen();
  }
  return menu->OpenAt(position);
}

}  // namespace quorvel
