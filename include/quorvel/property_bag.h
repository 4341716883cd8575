#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <variant>

#include "quorvel/export.h"

namespace quorvel {

/// A font as hosts name it.
struct Font {
  std::string family;
  double points = 9.0;
  bool bold = false;
  bool italic = false;
  bool operator==(const Font&) const = default;
};

/// A persisted property's value: Enabled is a bool, HostCommId a byte, Font a font.
using PropertyValue = std::variant<bool, std::uint8_t, Font>;

/// Where a host keeps a control's persisted properties between runs.
class QUORVEL_API PropertyBag {
 public:
  virtual ~PropertyBag() = default;
  /// The stored value of that name; nothing when it was never written.
  [[nodiscard]] virtual std::optional<PropertyValue> Read(std::string_view name) const = 0;
  virtual void Write(std::string_view name, const PropertyValue& value) = 0;
};

/// A property bag in memory.
class QUORVEL_API MemoryPropertyBag : public PropertyBag {
 public:
  [[nodiscard]] std::optional<PropertyValue> Read(std::string_view name) const override {
    const auto found = values_.find(name);
    if (found == values_.end()) return std::nullopt;
    return found->second;
  }
  void Write(std::string_view name, const PropertyValue& value) override {
    values_.insert_or_assign(std::string(name), value);
  }

 private:
  std::map<std::string, PropertyValue, std::less<>> values_;
};

}  // namespace quorvel
