#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>

#include "quorvel/export.h"

namespace quorvel {

/// An object made from a class identifier, whose methods are called by name.
class QUORVEL_API AutomationObject {
 public:
  virtual ~AutomationObject() = default;
  /// Calls a method that takes a 32-bit integer and returns a text. Throws std::exception when the
  /// object has no such method or the method fails.
  virtual std::string Call(std::string_view method, std::int32_t argument) = 0;
};

/// Makes objects from class identifiers. A host registers the classes that it offers.
class QUORVEL_API ClassFactory {
 public:
  using Maker = std::function<std::shared_ptr<AutomationObject>()>;

  void Register(std::string class_id, Maker maker) {
    makers_.insert_or_assign(std::move(class_id), std::move(maker));
  }
  /// A new object of the class; throws std::invalid_argument for an identifier that is not
  /// registered.
  [[nodiscard]] std::shared_ptr<AutomationObject> Create(std::string_view class_id) const {
    const auto found = makers_.find(class_id);
    if (found == makers_.end()) {
      throw std::invalid_argument("no class " + std::string(class_id));
    }
    return found->second();
  }

 private:
  std::map<std::string, Maker, std::less<>> makers_;
};

}  // namespace quorvel
