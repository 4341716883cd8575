#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "quorvel.h"

namespace quorvel::c {

/// Why a call is refused; thrown inside the library only.
struct Refusal {
  quorvel_result result;
  std::string words;
};

[[noreturn]] inline void Refuse(quorvel_result result, std::string words) {
  throw Refusal{result, std::move(words)};
}

/// Notes the failure that is being handled for quorvel_last_error; returns its result.
quorvel_result NoteFailure() noexcept;

/// The body of every function: nothing that it throws goes any further.
template <class Body>
quorvel_result Run(const Body& body) noexcept {
  try {
    body();
    return QUORVEL_OK;
  } catch (...) {
    return NoteFailure();
  }
}

template <class Pointer>
Pointer Given(Pointer pointer, const char* what) {
  if (pointer == nullptr) Refuse(QUORVEL_INVALID, std::string(what) + " is NULL");
  return pointer;
}

inline std::span<const std::uint8_t> Bytes(const std::uint8_t* data, std::size_t length) {
  if (length > 0) static_cast<void>(Given(data, "data"));
  return {data, length};
}

/// A buffer of the caller's.
template <class Unit>
struct Buffer {
  Unit* place;
  std::size_t size;
  std::size_t* needed;
};

template <class Unit>
void Put(Buffer<Unit> to, const void* from, std::size_t count) {
  if (to.needed != nullptr) *to.needed = count;
  if (to.place == nullptr) {
    static_cast<void>(Given(to.needed, "both buffer and needed"));
    return;
  }
  if (to.size < count) {
    Refuse(QUORVEL_TOO_SMALL, "the buffer has " + std::to_string(to.size) + " bytes, " +
                                  std::to_string(count) + " are needed");
  }
  if (count > 0) std::memcpy(to.place, from, count);
}

inline void Put(Buffer<std::uint8_t> to, std::span<const std::uint8_t> bytes) {
  Put(to, bytes.data(), bytes.size());
}
inline void Put(Buffer<char> to, const std::string& text) {
  Put(to, text.c_str(), text.size() + 1);
}

/// Checks the size that a caller has set: a struct of an older header is shorter, one of a newer
/// header longer. Each version's is a multiple of the alignment, so that no member is cut.
void CheckSize(std::size_t size, std::size_t alignment);
/// Refuses a longer struct which says something where this library knows nothing.
void CheckTail(const void* given, std::size_t from, std::size_t to);

/// A caller's struct; what an older one lacks is zero.
template <class Struct>
Struct Taken(const Struct* given, const char* what) {
  static_cast<void>(Given(given, what));
  std::size_t size = 0;
  std::memcpy(&size, given, sizeof size);
  CheckSize(size, alignof(Struct));
  if (size > sizeof(Struct)) CheckTail(given, sizeof(Struct), size);
  Struct taken{};
  std::memcpy(&taken, given, size < sizeof(Struct) ? size : sizeof(Struct));
  return taken;
}

/// Fills a caller's struct as far as it goes, and leaves its size.
template <class Struct>
void Fill(Struct* place, Struct filled, const char* what) {
  const std::size_t size = Given(place, what)->size;
  CheckSize(size, alignof(Struct));
  if (size > sizeof(Struct)) std::memset(place, 0, size);
  filled.size = size;
  std::memcpy(place, &filled, size < sizeof(Struct) ? size : sizeof(Struct));
}

/// Shows pieces to a visitor until it has seen enough. `shown` makes the C struct of a piece; the
/// pieces are the caller's own, so that the visitor may change what they tell of.
template <class Pieces, class Shown, class Visit>
void ShowEach(const Pieces& pieces, const Shown& shown, Visit visit, void* user) {
  static_cast<void>(Given(visit, "the visitor"));
  for (const auto& piece : pieces) {
    auto item = shown(piece);
    item.size = sizeof item;
    if (visit(user, &item) != 0) return;
  }
}

/// NULL as an empty text.
inline std::string_view OrEmpty(const char* text) { return text == nullptr ? "" : text; }

}  // namespace quorvel::c
