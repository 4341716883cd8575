#pragma once

#include <cstddef>
#include <tuple>
#include <utility>

#include "quorvel/export.h"

namespace quorvel {

/// Values of a model as they were once. Exchanged with the present ones they go back there, and
/// exchanged again they go forth.
class QUORVEL_API Kept {
 public:
  Kept() = default;
  Kept(const Kept&) = delete;
  Kept& operator=(const Kept&) = delete;
  virtual ~Kept();
  virtual void Exchange() = 0;
};

template <class... Values>
class KeptValues final : public Kept {
 public:
  explicit KeptValues(Values&... values) : present_(values...), kept_(values...) {}
  void Exchange() override { ExchangeEach(std::index_sequence_for<Values...>()); }

 private:
  template <std::size_t... I>
  void ExchangeEach(std::index_sequence<I...> /*all*/) {
    using std::swap;
    (swap(std::get<I>(present_), std::get<I>(kept_)), ...);
  }

  std::tuple<Values&...> present_;
  std::tuple<Values...> kept_;
};

}  // namespace quorvel
