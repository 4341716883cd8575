#include "ui/context.h"

#include "core/codec.h"

namespace quorvel {

void Context::InitGlobals() {
  device.UsePcTime = false;
  texts.CreateCatalogues();
}

void Context::EncodeListedBlocks() {
  const ClockTime pc_time = platform.Now().time;
  EncodeModifiedBlocks(device.BlkImage, device.env, device.Record(),
                       device.UsePcTime ? &pc_time : nullptr);
}

int Context::DeviceFirmware() const {
  const ComboSizes& sizes = host.combo_sizes;
  if (sizes.ComboExtraA == 0) return device.ComboArray.Header().Firmware();
  return sizes.ComboExtraA * 100 + sizes.ComboExtraB;
}

}  // namespace quorvel
