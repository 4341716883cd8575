#include <utility>

#include "muxhost/device/combined_parts.h"
#include "muxhost/host_session.h"
#include "quorvel/platform.h"

namespace quorvel::muxhost {

namespace {

/// A model name as bytes, without what pads it.
std::string_view WithoutPadding(std::string_view name) {
  name = name.substr(0, name.find('\0'));
  return name.substr(0, name.find_last_not_of(' ') + 1);
}

}  // namespace

void HostSession::RequestBlk(std::uint8_t blknum) {
  Log("RequestBlk " + std::to_string(blknum));
  if (LinkIsOff()) return;
  if (settings_.comm_id != 0 && blknum == 1) {
    HandOverImage();
    return;
  }
  const auto block = Device().ReadBlock(blknum);
  if (!block) {
    Log("not answered: the device has no block " + std::to_string(blknum));
    return;
  }
  std::vector<Byte> reply{blknum};
  reply.insert(reply.end(), block->begin(), block->end());
  const auto hand_over = [this, counted = false](std::span<const Byte> arrived) mutable {
    if (!std::exchange(counted, true)) ++exchange_->blocks_read;
    control_->FillDataBlk(arrived);
  };
  link_.Answer(Traffic::kBlockReply, std::move(reply), hand_over);
}

void HostSession::HandOverImage() {
  std::vector<Byte> image(Device().Bytes().begin(), Device().Bytes().end());
  image.push_back(0);
  link_.Answer(Traffic::kImageReply, std::move(image), [this](std::span<const Byte> arrived) {
    exchange_->bytes_read = arrived.size() - 1;
    exchange_->blocks_read = static_cast<int>(exchange_->bytes_read / kBlockSize);
    control_->FillDataBlk(arrived);
  });
}

void HostSession::RequestComboBlocks() {
  Log("RequestComboBlocks");
  if (LinkIsOff()) return;
  if (!Device().IsCombined()) {
    Log("not answered: the device exchanges single blocks");
    return;
  }
  link_.Answer(
      Traffic::kArrayReply, Device().CombinedBytes(), [this](std::span<const Byte> arrived) {
        const auto parts = TakeApart(arrived);
        exchange_->blocks_read = parts ? static_cast<int>(parts->blocks.size() / kBlockSize) : 0;
        exchange_->bytes_read = arrived.size();
        control_->FillComboBlk(arrived);
      });
}

void HostSession::DownLoadData(std::span<std::uint8_t> bdata) {
  const std::string number = bdata.empty() ? "nothing" : std::to_string(bdata[0]);
  const bool ends = Device().EndsSend(bdata);
  if (ends) {
    exchange_->NoteEnd(bdata);
  } else {
    exchange_->NoteBlock(bdata);
  }
  Log("DownLoadData " + (ends ? "end" : number));
  if (LinkIsOff()) return;
  const auto written = link_.WritePacket(bdata, [this, exchange = exchange_] {
    exchange->unanswered.reset();
    control_->TriggerUploadTimer();
  });
  if (written == SimulatedDevice::Written::kRefused) {
    Log("not written: the device refuses block " + number);
  } else if (!ends) {
    exchange_->blocks_written.push_back(bdata[0]);
  }
}

void HostSession::SendComboBlocks(std::span<std::uint8_t> cb_data) {
  exchange_->NoteArray(cb_data);
  Log("SendComboBlocks " + std::to_string(cb_data.size()) + " bytes");
  if (LinkIsOff()) return;
  exchange_->array_taken = link_.WriteArray(cb_data);
  if (!exchange_->array_taken) Log("not written: the device does not take the array");
}

void HostSession::NoteArrival() {
  exchange_->arrived = true;
  if (on_arrival) on_arrival();
}

void HostSession::UploadSucceeded() {
  NoteArrival();
  Log("UploadSucceeded");
}

void HostSession::ULSucceededWithStr(std::string_view mname, std::uint8_t param1,
                                     std::uint8_t param2) {
  NoteArrival();
  Log("ULSucceededWithStr " + platform_.ToUtf8(WithoutPadding(mname)) + " " +
      std::to_string(param1) + " " + std::to_string(param2));
}

void HostSession::ActGridPop(std::uint8_t maxcam) {
  Log("ActGridPop " + std::to_string(maxcam));
  if (on_zones_wanted) on_zones_wanted(maxcam);
}

void HostSession::ActGridData(std::span<const std::uint8_t> barray) {
  zones_.assign(barray.begin(), barray.end());
  Log("ActGridData " + std::to_string(barray.size()) + " bytes");
}

void HostSession::Click() { Log("Click"); }
void HostSession::DblClick() { Log("DblClick"); }

}  // namespace quorvel::muxhost
