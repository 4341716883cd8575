#include "host/model_catalogue.h"

#include "resources/text_table.h"
#include "ui/context.h"

namespace quorvel {

namespace {

constexpr Byte kModelCodeMask = 0x7F;
constexpr int kOfConnected = 0;
constexpr int kOfImage = 1;

/// A name as devices hold it: the first character, and of the others those that are not 0.
std::string NameOf(std::span<const Byte> bytes) {
  std::string name(1, static_cast<char>(bytes[0]));
  for (const Byte byte : bytes.subspan(1)) {
    if (byte != 0) name.push_back(static_cast<char>(byte));
  }
  return name;
}

std::string_view Trimmed(std::string_view text) {
  const auto first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

/// The two editions of one product that carry different names.
bool AreVaultlineEditions(std::string_view a, std::string_view b) {
  constexpr std::string_view kAdvanced = "Vaultline Adv";
  constexpr std::string_view kPro = "Vaultline Pro";
  a = Trimmed(a);
  b = Trimmed(b);
  return (a == kAdvanced && b == kPro) || (a == kPro && b == kAdvanced);
}

/// The identity by which an image is compared, also without an identity block.
struct ImageIdentity {
  Byte channels = 0;
  Byte code = 0;
  std::string name;
  bool named = false;  ///< it holds a name, which may be empty
};

ImageIdentity IdentityOf(const BlockImage& image) {
  if (image.Size() == 0) return {};
  const Identity identity = ReadIdentity(image);
  if (!image.Holds(kIdentityBlock)) return {identity.MaxCam, identity.ModelCode, {}, false};
  return {identity.MaxCam, identity.ModelCode, NameOf(image.Block(kIdentityBlock).subspan<2>()),
          true};
}

bool IdentityFits(const ConnectedIdentity& connected, const ImageIdentity& image) {
  if (image.channels != connected.ConnChannels) return false;
  if (image.code != connected.ConnModelCode && !IsVideoTwin(connected, image.code)) return false;
  return !image.named || image.name == connected.ConnModelName ||
         AreVaultlineEditions(image.name, connected.ConnModelName);
}

}  // namespace

bool SaveConnectedIdentity(HostStatements& host, std::span<const Byte> data) {
  if (data.size() < 4) return false;
  host.connected = {data[1], static_cast<Byte>(data[2] & kModelCodeMask), NameOf(data.subspan(3))};
  host.ComboMode = false;
  host.combo_sizes.ComboExtraA = 0;
  host.combo_sizes.ComboExtraB = 0;
  return true;
}

std::string ModelDescription(const Context& context, int which) {
  int channels = 0;
  int code = 0;
  if (which == kOfConnected) {
    channels = context.host.connected.ConnChannels;
    code = context.host.connected.ConnModelCode;
  } else if (which == kOfImage) {
    const ImageIdentity identity = IdentityOf(context.device.BlkImage);
    channels = identity.channels;
    code = identity.code;
  }
  return " (" + std::to_string(channels) + " ch, " + std::string(ModelText(code)) + ")";
}

bool IsVideoTwin(const ConnectedIdentity& connected, Byte code) {
  const auto has_twin = [](Byte it) { return it >= 2 && it <= 19; };
  return has_twin(code) && has_twin(connected.ConnModelCode) &&
         code == (connected.ConnModelCode ^ 1);
}

std::optional<IdentityMismatch> FindIdentityMismatch(const Context& context) {
  if (!context.device.LoadedFromFile) return std::nullopt;
  const ImageIdentity identity = IdentityOf(context.device.BlkImage);
  if (IdentityFits(context.host.connected, identity)) return std::nullopt;
  const auto shown = [&context](const std::string& name, int which) {
    return context.platform.ToUtf8(name) + ModelDescription(context, which);
  };
  return IdentityMismatch{shown(context.host.connected.ConnModelName, kOfConnected),
                          shown(identity.name, kOfImage)};
}

bool CheckLoadedIdentity(Context& context) {
  const auto mismatch = FindIdentityMismatch(context);
  if (!mismatch) return true;
  const auto line = [&context](int text, const std::string& device) {
    return "\r" + context.GetText(text) + "  " + device;
  };
  const Message message{
      context.GetText(txt::kDataDoesNotMatch) + line(txt::kConnectedToModel, mismatch->connected) +
          line(txt::kLoadingFromModel, mismatch->of_image),
      context.GetText(txt::kErrorMessage), Message::Buttons::kOk, Message::Kind::kError};
  if (!context.edges.terminated) context.platform.Ask(message);
  return false;
}

}  // namespace quorvel
