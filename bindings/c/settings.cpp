#include "bindings/c/handles.h"

using namespace quorvel::c;

namespace {

quorvel_setting Shown(const quorvel::SettingLine& line) {
  quorvel_setting shown{};
  shown.name = line.name.c_str();
  shown.value = line.value.c_str();
  return shown;
}

quorvel_difference Shown(const quorvel::SettingDifference& difference) {
  quorvel_difference shown{};
  shown.name = difference.name.c_str();
  shown.value = difference.value.c_str();
  shown.other = difference.other.c_str();
  shown.blocks = difference.blocks.data();
  shown.block_count = difference.blocks.size();
  return shown;
}

quorvel_setting_finding Shown(const quorvel::SettingFinding& finding) {
  quorvel_setting_finding shown{};
  shown.name = finding.name.c_str();
  shown.value = finding.value.c_str();
  shown.reason = finding.reason.c_str();
  return shown;
}

/// A description, and the arrays that its C struct points to.
class Described {
 public:
  explicit Described(quorvel::SettingDescription setting)
      : setting_(std::move(setting)), allowed_(AllowedInWords(setting_)) {
    for (const auto& code : setting_.codes) codes_.push_back({code.text.c_str(), code.value});
    for (const auto& place : setting_.places) {
      places_.push_back({place.at, place.length, place.is_mark ? 1 : 0, place.block, place.mask});
    }
  }

  [[nodiscard]] quorvel_setting_description Shown() const {
    quorvel_setting_description shown{};
    shown.name = setting_.name.c_str();
    shown.unit = setting_.unit.c_str();
    shown.allowed = allowed_.c_str();
    shown.type = static_cast<std::int32_t>(setting_.type);
    shown.writable = setting_.writable ? 1 : 0;
    shown.least = setting_.least;
    shown.most = setting_.most;
    shown.codes = codes_.data();
    shown.code_count = codes_.size();
    shown.codes_only = setting_.codes_only ? 1 : 0;
    shown.places = places_.data();
    shown.place_count = places_.size();
    shown.blocks = setting_.blocks.data();
    shown.block_count = setting_.blocks.size();
    return shown;
  }

 private:
  const quorvel::SettingDescription setting_;
  std::string allowed_;
  std::vector<quorvel_setting_code> codes_;
  std::vector<quorvel_setting_place> places_;
};

void Describe(const std::vector<quorvel::SettingDescription>& settings,
              quorvel_visit_description visit, void* user) {
  std::optional<Described> described;
  ShowEach(
      settings, [&described](const auto& it) { return described.emplace(it).Shown(); }, visit,
      user);
}

void RequireImage(const HeldControl& control) {
  if (!control->State().has_image) Refuse(QUORVEL_NO_IMAGE, "no configuration has arrived");
}

[[noreturn]] void RefuseUnknown(const HeldControl& control, const std::string& name) {
  RequireImage(control);
  Refuse(QUORVEL_NOT_FOUND, "there is no setting " + name);
}

}  // namespace

quorvel_result quorvel_control_settings(quorvel_control* control, const char* pattern,
                                        quorvel_visit_setting visit, void* user) {
  return Run([&] {
    const auto held = Of(control);
    ShowEach(
        held->Settings(OrEmpty(pattern)), [](const auto& it) { return Shown(it); }, visit, user);
  });
}

quorvel_result quorvel_control_differences(quorvel_control* control, const uint8_t* image,
                                           size_t length, quorvel_visit_difference visit,
                                           void* user) {
  return Run([&] {
    const auto held = Of(control);
    const auto differences = held->DifferencesFrom(Bytes(image, length));
    if (!differences) {
      RequireImage(held);
      Refuse(QUORVEL_FAILED, "the bytes are no image");
    }
    ShowEach(
        *differences, [](const auto& it) { return Shown(it); }, visit, user);
  });
}

quorvel_result quorvel_control_describe_setting(quorvel_control* control, const char* name,
                                                quorvel_visit_description visit, void* user) {
  return Run([&] {
    const auto held = Of(control);
    const auto setting = held->DescribeSetting(Given(name, "the name"));
    if (!setting) RefuseUnknown(held, name);
    Describe({*setting}, visit, user);
  });
}

quorvel_result quorvel_control_describe_settings(quorvel_control* control, const char* pattern,
                                                 quorvel_visit_description visit, void* user) {
  return Run([&] { Describe(Of(control)->DescribeSettings(OrEmpty(pattern)), visit, user); });
}

quorvel_result quorvel_control_get_setting(quorvel_control* control, const char* name, char* buffer,
                                           size_t size, size_t* needed) {
  return Run([&] {
    const auto held = Of(control);
    const auto value = held->GetSetting(Given(name, "the name"));
    if (!value) RefuseUnknown(held, name);
    Put({buffer, size, needed}, *value);
  });
}

quorvel_result quorvel_control_set_setting(quorvel_control* control, const char* name,
                                           const char* value, int32_t* changed) {
  using quorvel::SetAnswer;
  return Run([&] {
    const auto held = Of(control);
    const SetAnswer answer = held->SetSetting(Given(name, "the name"), Given(value, "the value"));
    const auto words = [&] { return std::string(name) + ": " + Describe(answer); };
    switch (answer) {
      case SetAnswer::kSet:
      case SetAnswer::kUnchanged: break;
      case SetAnswer::kNoSuchSetting: Refuse(QUORVEL_NOT_FOUND, words());
      case SetAnswer::kReadOnly: Refuse(QUORVEL_READ_ONLY, words());
      case SetAnswer::kNotAValue: Refuse(QUORVEL_NOT_A_VALUE, words());
      case SetAnswer::kNoImage: Refuse(QUORVEL_NO_IMAGE, words());
    }
    if (changed != nullptr) *changed = answer == SetAnswer::kSet ? 1 : 0;
  });
}

quorvel_result quorvel_control_setting_findings(quorvel_control* control,
                                                quorvel_visit_finding visit, void* user) {
  return Run([&] {
    const auto held = Of(control);
    ShowEach(
        held->SettingFindings(), [](const auto& it) { return Shown(it); }, visit, user);
  });
}
