#pragma once

#include <array>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "host/frm_to_mux.h"
#include "host/host_events.h"
#include "quorvel/block_image.h"
#include "quorvel/platform.h"
#include "quorvel/transfer.h"
#include "ui/connected_identity.h"

namespace quorvel {

/// Writes the edited configuration back to the device: as one combined array, or one block a
/// packet, paced by Timer1 and the host's acknowledgements. At most one packet is outstanding.
class Upload {
 public:
  Upload(Context& context, HostEvents& host);
  Upload(const Upload&) = delete;
  Upload& operator=(const Upload&) = delete;
  ~Upload() = default;

  /// Command 11. Encodes the listed blocks, checks that the data fits the device, and shows the
  /// send dialog; returns when it is closed.
  void Send();
  /// The host has written the last packet and is ready for the next.
  void TriggerTimer();

  /// Takes the dialog off the screen and ends the send.
  void CloseDialog();

 private:
  static constexpr std::size_t kPacketSize = 18;

  enum class State {
    kIdle,     ///< no block-by-block send yet
    kWaiting,  ///< START was pressed while a packet of the send before is on its way
    kRunning,  ///< each tick sends a block of the plan, the last one the end packet
    kEnded,    ///< the end packet was sent, or the user stopped the send
  };

  /// What a send rests on: the image, and what it was compared with when command 11 was given.
  struct Basis {
    int generation;
    bool combined;
    std::int16_t family;
    Byte comm_id;
    ConnectedIdentity connected;
    bool operator==(const Basis&) const = default;
  };

  /// A block as it was handed to the host. Another image may have come by the time the device takes
  /// it.
  struct HandedOver {
    int generation;
    int number;
    std::array<Byte, kBlockSize> bytes;
  };

  [[nodiscard]] Basis PresentBasis() const;
  [[nodiscard]] bool DataFits();
  [[nodiscard]] bool FamilyFits() const;
  void RefuseData();
  [[nodiscard]] bool BasisHolds();
  /// Goes to a state. Timer1 has the interval of it.
  void Enter(State state);
  void StartDL(const std::shared_ptr<frm_ToMux>& dialog, const SendChoice& choice);
  void StopDL();
  void ClearBlocks();
  void StartCombined(const std::shared_ptr<frm_ToMux>& dialog, const SendChoice& choice);
  void PutListedBlocks();
  [[nodiscard]] std::vector<HandedOver> IncludedBlocks(const SendChoice& choice) const;
  [[nodiscard]] HandedOver HandOver(int number) const;
  void NoteTaken(const HandedOver& block);
  [[nodiscard]] bool MacrosFit();
  [[nodiscard]] std::vector<Byte> Plan(bool all_blocks, bool macros) const;
  void StartBlocks(frm_ToMux& dialog, const SendChoice& choice);
  void Tick();
  void SendEndPacket();
  void SendPacket(std::array<Byte, kPacketSize>& packet);

  Context& context_;
  HostEvents& host_;
  std::shared_ptr<frm_ToMux> frmDL;
  State state_ = State::kIdle;
  std::unique_ptr<Timer> Timer1;
  /// Ends the wait for the acknowledgement of a packet that the user has stopped.
  std::unique_ptr<Timer> patience_;
  bool outstanding_ = false;                  ///< a packet has not been acknowledged
  std::optional<HandedOver> unacknowledged_;  ///< its block, also when it was given up
  Basis basis_{};                             ///< of the dialog that is open
  std::vector<Byte> plan_;
  std::size_t next_ = 0;  ///< place in the plan; at its end, the end packet follows
};

}  // namespace quorvel
