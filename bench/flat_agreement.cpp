#include "bench/flat_agreement.h"

#include <algorithm>
#include <memory>
#include <string_view>
#include <vector>

#include "bench/flat_record.h"
#include "core/codec.h"

namespace quorvel::bench {

namespace {

template <int most>
std::string_view View(const FlatText<most>& text) {
  return {text.characters, text.length};
}

/// Values that encoding does not write, or not as they are read, and a sample of the others.
std::string DifferentValue(MuxData& rec, const Identity& id, const FlatRecord& flat) {
  std::string different;
  const auto compare = [&different](const char* name, const auto& ours, const auto& flat_one) {
    if (!(ours == flat_one)) different = name;
  };
  compare("MaxCam", id.MaxCam, flat.cameras);
  compare("ModelCode", id.ModelCode, flat.model_code);
  compare("RecorderKind", id.RecorderKind, flat.recorder_kind);
  compare("VariantChar", id.VariantChar, flat.variant);
  compare("ArchOption", id.ArchOption, flat.archive_ports);
  compare("MuxModelName", rec.MuxModelName(), View(flat.model_name));
  compare("Extra_Quality_Feature", rec.Extra_Quality_Feature(), flat.extra_quality);
  compare("Rec120sp", rec.Rec120sp(), flat.turbo);
  compare("Alarm_Rec_Index", rec.Alarm_Rec_Index(), flat.alarm_rate);
  compare("PlayDwell", rec.PlayDwell(), flat.play_dwell);
  compare("CurrentYear", rec.TDInfo.CurrentYear(), flat.year);
  compare("SMTPPort", rec.AlmEmailNotify.SMTPPort(), flat.smtp_port);
  for (int i = 0; i < 5; ++i) {
    compare("TDDisplay", rec.TDInfo.TDDisplay(i), flat.date_display[i]);
    compare("TitleDisplay", rec.TitleDisplay(i), flat.title_display[i]);
  }
  for (int k = 0; k < id.MaxCam; ++k) {
    compare("title", rec.CamInfo(k)->title(), View(flat.title[k]));
    compare("VidLoss", rec.CamInfo(k)->VidLoss(), flat.video_loss[k]);
    compare("disable", rec.CamInfo(k)->disable(), flat.disable[k]);
    compare("Compress", rec.CamInfo(k)->Compress(), flat.compression[k]);
    compare("MacroLnk", rec.AlarmInfo(k)->MacroLnk(), flat.macro_link[k]);
    compare("TL_RRIndex", rec.CamEvent(k)->TL_RRIndex(), flat.lapse_rate[k]);
  }
  for (int i = 0; i < clsEmailNotify::kTextBlocks; ++i) {
    compare("BlkStrInit", std::string_view(rec.AlmEmailNotify.texts(i)), View(flat.text[i]));
  }
  return different;
}

std::string DifferentByte(const BlockImage& ours, const std::vector<Byte>& flat) {
  const auto [our, other] = std::mismatch(ours.Bytes().begin(), ours.Bytes().end(), flat.begin());
  if (our == ours.Bytes().end()) return {};
  const auto offset = our - ours.Bytes().begin();
  return "byte " + std::to_string(offset % kBlockSize) + " of block " +
         std::to_string(offset / kBlockSize + 1);
}

std::vector<Byte> Copy(const BlockImage& image) {
  return {image.Bytes().begin(), image.Bytes().end()};
}

}  // namespace

std::string FlatDisagreement(const BlockImage& image) {
  constexpr Byte kAlien = 0xEE;
  BlockImage decoded(Copy(image));
  RecordEnvironment env;
  const auto rec = std::make_unique<MuxData>(env);
  DecodeImage(decoded, env, *rec);
  std::vector<Byte> flat_decoded = Copy(image);
  const auto flat = std::make_unique<FlatRecord>();
  DecodeFlat(flat_decoded.data(), *flat);
  if (const auto byte = DifferentByte(decoded, flat_decoded); !byte.empty())
    return "repairs of " + byte;
  if (const auto value = DifferentValue(*rec, env.identity, *flat); !value.empty())
    return "value of " + value;

  BlockImage encoded(std::vector<Byte>(image.Size(), kAlien));
  EncodeImage(encoded, env, *rec);
  std::vector<Byte> flat_encoded(image.Size(), kAlien);
  EncodeFlat(*flat, flat_encoded.data());
  if (const auto byte = DifferentByte(encoded, flat_encoded); !byte.empty())
    return "encoded " + byte;
  return {};
}

}  // namespace quorvel::bench
