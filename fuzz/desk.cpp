#include "fuzz/desk.h"

#include <algorithm>
#include <array>
#include <exception>
#include <string_view>
#include <typeinfo>

#include "fuzz/check.h"
#include "quorvel/block_image.h"

namespace quorvel::fuzz {

namespace {

constexpr std::string_view kFailure = "Error found in ";
/// The routines that take an image from outside, and may refuse it.
constexpr std::array<std::string_view, 5> kTakeImages = {
    "FillDataBlk", "FillComboBlk", "RestoreImageFromFile", "SaveImageToFile", "LoadDefaultData"};

/// The edges of the component tell a failure from where they catch it, so it is still at hand.
void CheckFailureIsExplained(const Message& message) {
  const auto failure = std::current_exception();
  if (failure == nullptr) Fail("a failure is told without one: " + message.text);
  std::string_view where = std::string_view(message.text).substr(kFailure.size());
  where = where.substr(0, where.find('\r'));
  const bool takes_images = std::ranges::find(kTakeImages, where) != kTakeImages.end();
  try {
    std::rethrow_exception(failure);
  } catch (const HostFault&) {
  } catch (const PlatformError&) {
  } catch (const ImageError& error) {
    if (!takes_images) Fail(message.text + ": " + error.what());
  } catch (const std::exception& error) {
    Fail(message.text + ": " + typeid(error).name() + ", " + error.what());
  }
}

}  // namespace

bool Desk::Ask(const Message& message) {
  if (message.text.starts_with(kFailure)) {
    CheckFailureIsExplained(message);
    ++failures_told;
  }
  return answer ? answer(message) : true;
}

std::optional<std::string> Desk::AskFile(const FileRequest& request) {
  return answer_file ? answer_file(request) : std::nullopt;
}

std::vector<std::uint8_t> Desk::ReadFile(const std::string& path) {
  const auto found = files.find(path);
  if (disk_fails || found == files.end()) throw PlatformError("cannot read " + path);
  return found->second;
}

void Desk::StoreFile(const std::string& path, std::span<const std::uint8_t> bytes) {
  if (disk_fails) throw PlatformError("cannot write " + path);
  files[path].assign(bytes.begin(), bytes.end());
}

bool PressButton(Dialog& dialog, const char* button) {
  return dialog.Find<Button>(button).Click() == Answer::kDone;
}

}  // namespace quorvel::fuzz
