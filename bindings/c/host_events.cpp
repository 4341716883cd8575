#include "bindings/c/host_events.h"

#include <string>

namespace quorvel::c {

using Bytes = const std::uint8_t*;

void HostEvents::RequestComboBlocks() { Raise(events_.request_combo_blocks); }

void HostEvents::SendComboBlocks(std::span<std::uint8_t> cb_data) {
  Raise(events_.send_combo_blocks, Bytes{cb_data.data()}, cb_data.size());
}

void HostEvents::ULSucceededWithStr(std::string_view mname, std::uint8_t param1,
                                    std::uint8_t param2) {
  const std::string name = texts_.ToUtf8(mname);
  Raise(events_.ul_succeeded_with_str, name.c_str(), param1, param2);
}

void HostEvents::RequestBlk(std::uint8_t blknum) { Raise(events_.request_blk, blknum); }

void HostEvents::UploadSucceeded() { Raise(events_.upload_succeeded); }

void HostEvents::DownLoadData(std::span<std::uint8_t> bdata) {
  Raise(events_.download_data, Bytes{bdata.data()}, bdata.size());
}

void HostEvents::ActGridPop(std::uint8_t maxcam) { Raise(events_.act_grid_pop, maxcam); }

void HostEvents::ActGridData(std::span<const std::uint8_t> barray) {
  Raise(events_.act_grid_data, barray.data(), barray.size());
}

void HostEvents::Click() { Raise(events_.click); }
void HostEvents::DblClick() { Raise(events_.dbl_click); }

}  // namespace quorvel::c
