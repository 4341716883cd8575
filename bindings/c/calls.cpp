#include "bindings/c/calls.h"

#include <new>
#include <stdexcept>

#include "quorvel/version.h"

namespace quorvel::c {

namespace {

/// Words of this thread. Where there is no memory for them, a constant.
struct Words {
  std::string text;
  const char* shown = "";
};
thread_local Words last_words;

quorvel_result Note(quorvel_result result, std::string_view words) noexcept {
  try {
    last_words.text = words;
    last_words.shown = last_words.text.c_str();
  } catch (...) {
    last_words.shown = "there is not enough memory";
  }
  return result;
}

}  // namespace

quorvel_result NoteFailure() noexcept {
  try {
    throw;
  } catch (const Refusal& refusal) {
    return Note(refusal.result, refusal.words);
  } catch (const std::bad_alloc&) {
    return Note(QUORVEL_NO_MEMORY, "there is not enough memory");
  } catch (const std::exception& failure) {
    return Note(QUORVEL_FAILED, failure.what());
  } catch (...) {
    return Note(QUORVEL_FAILED, "a callback has thrown something");
  }
}

void CheckSize(std::size_t size, std::size_t alignment) {
  if (size < sizeof size || size % alignment != 0) {
    Refuse(QUORVEL_INVALID, std::to_string(size) + " is no size of this struct");
  }
}

void CheckTail(const void* given, std::size_t from, std::size_t to) {
  const auto* const bytes = static_cast<const unsigned char*>(given);
  for (std::size_t at = from; at < to; ++at) {
    if (bytes[at] != 0) Refuse(QUORVEL_UNSUPPORTED, "the struct has parts of a newer library");
  }
}

}  // namespace quorvel::c

const char* quorvel_version(void) { return quorvel::Version().data(); }

const char* quorvel_last_error(void) { return quorvel::c::last_words.shown; }
