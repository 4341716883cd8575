#include "ui/editing/setting_ref.h"

#include "core/layout/any_setting.h"

namespace quorvel {

namespace setting_ref_detail {

std::string NameOf(const SettingOwner& owner, const char* name, int entry) {
  return layout::FullName(owner, name, entry);
}

}  // namespace setting_ref_detail

namespace {

constexpr int kHours = 24;
constexpr int kMinutes = 60;
constexpr int kByteValues = 256;
constexpr int kNoTime = 1 << 16;  // from here on: an hour and a minute that no clock shows

class JoinedAccess final : public SettingAccess<int> {
 public:
  using Join = std::function<int(const std::vector<int>&)>;
  using Part = std::function<void(int, std::vector<int>&)>;
  JoinedAccess(std::vector<SettingRef> settings, Join join, Part part)
      : settings_(std::move(settings)), join_(std::move(join)), part_(std::move(part)) {}

  [[nodiscard]] int Get(MuxData& record, int line) const override {
    return join_(Values(record, line));
  }
  void Set(MuxData& record, int line, int value) const override {
    std::vector<int> values = Values(record, line);
    part_(value, values);
    for (std::size_t i = 0; i < settings_.size(); ++i) {
      settings_[i].Access().Set(record, line, values.at(i));
    }
  }
  void AddNames(MuxData& record, int line, std::vector<std::string>& names) const override {
    for (const SettingRef& setting : settings_) setting.Access().AddNames(record, line, names);
  }

 private:
  [[nodiscard]] std::vector<int> Values(MuxData& record, int line) const {
    std::vector<int> values;
    values.reserve(settings_.size());
    for (const SettingRef& setting : settings_) {
      values.push_back(setting.Access().Get(record, line));
    }
    return values;
  }

  std::vector<SettingRef> settings_;
  Join join_;
  Part part_;
};

class OnePerLineAccess final : public SettingAccess<int> {
 public:
  explicit OnePerLineAccess(std::vector<SettingRef> settings) : settings_(std::move(settings)) {}

  [[nodiscard]] int Get(MuxData& record, int line) const override {
    return Of(line).Get(record, line);
  }
  void Set(MuxData& record, int line, int value) const override {
    Of(line).Set(record, line, value);
  }
  void AddNames(MuxData& record, int line, std::vector<std::string>& names) const override {
    Of(line).AddNames(record, line, names);
  }

 private:
  [[nodiscard]] const SettingAccess<int>& Of(int line) const {
    return settings_.at(static_cast<std::size_t>(line)).Access();
  }

  std::vector<SettingRef> settings_;
};

class ConvertedAccess final : public SettingAccess<int> {
 public:
  using ToShown = std::function<int(MuxData&, int, int)>;
  using ToStored = std::function<int(int, int)>;
  ConvertedAccess(SettingRef setting, ToShown to_shown, ToStored to_stored)
      : setting_(std::move(setting)),
        to_shown_(std::move(to_shown)),
        to_stored_(std::move(to_stored)) {}

  [[nodiscard]] int Get(MuxData& record, int line) const override {
    return to_shown_(record, line, Stored().Get(record, line));
  }
  void Set(MuxData& record, int line, int value) const override {
    Stored().Set(record, line, to_stored_(value, Stored().Get(record, line)));
  }
  void AddNames(MuxData& record, int line, std::vector<std::string>& names) const override {
    Stored().AddNames(record, line, names);
  }

 private:
  [[nodiscard]] const SettingAccess<int>& Stored() const { return setting_.Access(); }

  SettingRef setting_;
  ToShown to_shown_;
  ToStored to_stored_;
};

class BitsAccess final : public SettingAccess<int> {
 public:
  BitsAccess(SettingRef mask, std::vector<int> bits)
      : mask_(std::move(mask)), bits_(std::move(bits)) {}

  [[nodiscard]] int Get(MuxData& record, int line) const override {
    return GetBit(Mask(record, line), Bit(line));
  }
  void Set(MuxData& record, int line, int value) const override {
    Byte mask = Mask(record, line);
    SetBit(mask, Bit(line), value != 0);
    mask_.Access().Set(record, line, mask);
  }
  void AddNames(MuxData& record, int line, std::vector<std::string>& names) const override {
    mask_.Access().AddNames(record, line, names);
    for (std::string& name : names) name += " bit " + std::to_string(Bit(line));
  }

 private:
  [[nodiscard]] int Bit(int line) const { return bits_.at(static_cast<std::size_t>(line)); }
  [[nodiscard]] Byte Mask(MuxData& record, int line) const {
    return static_cast<Byte>(mask_.Access().Get(record, line));
  }

  SettingRef mask_;
  std::vector<int> bits_;
};

class AccessWhere final : public SettingAccess<int> {
 public:
  using Holds = std::function<bool(MuxData&, int)>;
  AccessWhere(std::shared_ptr<const SettingAccess<int>> setting, Holds holds, int otherwise)
      : setting_(std::move(setting)), holds_(std::move(holds)), otherwise_(otherwise) {}

  [[nodiscard]] int Get(MuxData& record, int line) const override {
    return holds_(record, line) ? setting_->Get(record, line) : otherwise_;
  }
  void Set(MuxData& record, int line, int value) const override {
    if (holds_(record, line)) setting_->Set(record, line, value);
  }
  void AddNames(MuxData& record, int line, std::vector<std::string>& names) const override {
    setting_->AddNames(record, line, names);
  }

 private:
  std::shared_ptr<const SettingAccess<int>> setting_;
  Holds holds_;
  int otherwise_;
};

}  // namespace

SettingRef SettingRef::Otherwise(int value) const {
  SettingRef ref = *this;
  ref.taken_for_ = value;
  ref.written_ = value;
  return ref;
}

SettingRef SettingRef::OtherwiseWritten(int value) const {
  SettingRef ref = *this;
  ref.written_ = value;
  return ref;
}

SettingRef SettingRef::Where(std::function<bool(MuxData&, int)> holds, int value) const {
  SettingRef ref = *this;
  ref.access_ = std::make_shared<AccessWhere>(access_, std::move(holds), value);
  return ref;
}

SettingRef Joined(std::vector<SettingRef> settings,
                  std::function<int(const std::vector<int>&)> join,
                  std::function<void(int, std::vector<int>&)> part) {
  return SettingRef(
      std::make_shared<JoinedAccess>(std::move(settings), std::move(join), std::move(part)));
}

SettingRef TimeOf(SettingRef hour, SettingRef minute) {
  return Joined(
      {std::move(hour), std::move(minute)},
      [](const std::vector<int>& time) {
        const bool exists = time.at(0) < kHours && time.at(1) < kMinutes;
        return exists ? time.at(0) * kMinutes + time.at(1)
                      : kNoTime + time.at(0) * kByteValues + time.at(1);
      },
      [](int value, std::vector<int>& time) {
        const int base = value < kNoTime ? kMinutes : kByteValues;
        const int number = value < kNoTime ? value : value - kNoTime;
        time = {number / base, number % base};
      });
}

SettingRef OnePerLine(std::vector<SettingRef> settings) {
  return SettingRef(std::make_shared<OnePerLineAccess>(std::move(settings)));
}

SettingRef Converted(SettingRef setting, std::function<int(MuxData&, int, int)> to_shown,
                     std::function<int(int, int)> to_stored) {
  return SettingRef(std::make_shared<ConvertedAccess>(std::move(setting), std::move(to_shown),
                                                      std::move(to_stored)));
}

SettingRef BitsOf(SettingRef mask, std::vector<int> bits) {
  return SettingRef(std::make_shared<BitsAccess>(std::move(mask), std::move(bits)));
}

}  // namespace quorvel
