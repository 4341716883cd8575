#include "ui/widgets/failure.h"

#include <exception>
#include <new>
#include <string>

namespace quorvel {

namespace {

std::string AsSentence(std::string words) {
  if (words.empty()) return words;
  if (words[0] >= 'a' && words[0] <= 'z') words[0] = static_cast<char>(words[0] - 'a' + 'A');
  if (words.back() != '.') words += '.';
  return words;
}

}  // namespace

std::string FailureReason() {
  try {
    throw;
  } catch (const std::bad_alloc&) {
    return "There is not enough memory.";
  } catch (const std::exception& error) {
    return AsSentence(error.what());
  } catch (...) {
    return "The cause is not known.";
  }
}

void WriteLog(Platform& platform, LogLevel level, std::string_view text) noexcept {
  try {
    platform.Log(level, text);
  } catch (...) {  // what is logged has happened; that nobody hears of it changes nothing
  }
}

void ReportFailure(Platform& platform, std::string_view routine, std::string_view place) noexcept {
  try {
    std::string text = "Error found in ";
    text.append(routine);
    if (!place.empty()) text.append(".").append(place);
    const std::string reason = FailureReason();
    WriteLog(platform, LogLevel::kError, text + ": " + reason);
    platform.Ask(
        {text + '\r' + reason, kComponentName, Message::Buttons::kOk, Message::Kind::kError});
  } catch (...) {  // a platform that cannot even show a message leaves nothing else to do
  }
}

void TellFailure(Platform& platform, std::string_view beginning) noexcept {
  try {
    const std::string text = std::string(beginning) + FailureReason();
    WriteLog(platform, LogLevel::kError, text);
    platform.Ask({text, kComponentName, Message::Buttons::kOk, Message::Kind::kError});
  } catch (...) {  // as above
  }
}

}  // namespace quorvel
