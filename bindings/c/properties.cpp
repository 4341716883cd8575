#include "bindings/c/handles.h"

using namespace quorvel::c;

namespace {

struct Kept {
  bool enabled;
  std::uint8_t host_comm_id;
  quorvel::Font font;
};

quorvel_properties Shown(const Kept& kept) {
  quorvel_properties shown{};
  shown.enabled = kept.enabled ? 1 : 0;
  shown.host_comm_id = kept.host_comm_id;
  shown.font_family = kept.font.family.c_str();
  shown.font_points = kept.font.points;
  shown.font_bold = kept.font.bold ? 1 : 0;
  shown.font_italic = kept.font.italic ? 1 : 0;
  return shown;
}

}  // namespace

quorvel_result quorvel_control_properties(quorvel_control* control, quorvel_visit_properties visit,
                                          void* user) {
  return Run([&] {
    const auto held = Of(control);
    static_cast<void>(Given(visit, "the visitor"));
    quorvel::MemoryPropertyBag bag;
    held->WriteProperties(bag);  // from now on they count as kept
    const Kept kept{held->Enabled(), held->HostCommId(), held->Font()};
    ShowEach(
        std::span(&kept, 1), [](const Kept& it) { return Shown(it); }, visit, user);
  });
}

quorvel_result quorvel_control_set_properties(quorvel_control* control,
                                              const quorvel_properties* properties) {
  return Run([&] {
    const auto held = Of(control);
    const auto taken = Taken(properties, "properties");
    if (taken.host_comm_id < 0 || taken.host_comm_id > 255) {
      Refuse(QUORVEL_INVALID, "a communication id is 0 to 255");
    }
    quorvel::MemoryPropertyBag bag;
    bag.Write("Enabled", taken.enabled != 0);
    bag.Write("HostCommId", static_cast<std::uint8_t>(taken.host_comm_id));
    if (taken.font_family != nullptr) {
      bag.Write("Font", quorvel::Font{taken.font_family, taken.font_points, taken.font_bold != 0,
                                      taken.font_italic != 0});
    }
    held->ReadProperties(bag);
  });
}

quorvel_result quorvel_control_properties_changed(quorvel_control* control, int32_t* changed) {
  return Run([&] {
    const auto held = Of(control);
    *Given(changed, "changed") = held->PropertiesChanged() ? 1 : 0;
  });
}

quorvel_result quorvel_control_enabled(quorvel_control* control, int32_t* enabled) {
  return Run([&] {
    const auto held = Of(control);
    *Given(enabled, "enabled") = held->Enabled() ? 1 : 0;
  });
}

quorvel_result quorvel_control_set_enabled(quorvel_control* control, int32_t enabled) {
  return Run([&] { Of(control)->Enabled(enabled != 0); });
}

quorvel_result quorvel_control_host_comm_id(quorvel_control* control, uint8_t* id) {
  return Run([&] {
    const auto held = Of(control);
    *Given(id, "id") = held->HostCommId();
  });
}

quorvel_result quorvel_control_set_host_comm_id(quorvel_control* control, uint8_t id) {
  return Run([&] { Of(control)->HostCommId(id); });
}
