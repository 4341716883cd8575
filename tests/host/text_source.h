#pragma once

#include <functional>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <utility>

#include "quorvel/class_factory.h"

namespace quorvel {

/// A host's source of texts, which answers for each id as it is told.
class TextSource : public AutomationObject {
 public:
  using Answer = std::function<std::string(std::int32_t id)>;
  explicit TextSource(Answer answer) : answer_(std::move(answer)) {}
  std::string Call(std::string_view method, std::int32_t id) override {
    if (method != "getresourcestring") throw std::invalid_argument("no such method");
    return answer_(id);
  }

 private:
  Answer answer_;
};

inline void RegisterTexts(ClassFactory& classes, const std::string& name,
                          TextSource::Answer answer) {
  classes.Register(name, [answer] { return std::make_shared<TextSource>(answer); });
}

}  // namespace quorvel
