#pragma once

#include <array>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "host/host_events.h"
#include "host/send_checks.h"
#include "host/transfer_run.h"
#include "quorvel/block_image.h"
#include "quorvel/platform.h"
#include "quorvel/transfer.h"

namespace quorvel {

/// The dialog in which a send was started, and that shows it.
class UploadListener {
 public:
  /// A send without a dialog begins: what was shown is over.
  virtual void Over() = 0;
  /// The blocks have begun to go.
  virtual void BlocksGo() = 0;
  /// The blocks that go are the listed ones: the list can be emptied.
  virtual void ListedBlocksGo() = 0;
  /// Block `number` is on its way, the `done`th of `total`.
  virtual void BlockGoes(int number, int done, int total) = 0;
  virtual void EndPacketGoes() = 0;
  /// Everything has been sent.
  virtual void AllIsSent() = 0;
  /// The data does not match the device any more: nothing more is sent.
  virtual void DoesNotMatch() = 0;
  /// True when macros of another size than the device states are to be sent.
  [[nodiscard]] virtual bool AcceptMacroSize() = 0;

 protected:
  ~UploadListener() = default;
};

/// Writes the edited configuration back to the device: as one combined array, or one block a
/// packet, paced by Timer1 and the host's acknowledgements. At most one packet is outstanding.
class Upload {
 public:
  Upload(Context& context, HostEvents& host, UploadListener& dialog);
  Upload(const Upload&) = delete;
  Upload& operator=(const Upload&) = delete;
  ~Upload() = default;

  /// A send without a dialog; false when it is refused.
  bool Send(const SendChoice& choice);
  /// Begins for the dialog, or without one if `quiet`, as long as `basis` holds.
  void Start(const SendChoice& choice, const SendBasis& basis, bool quiet);
  /// Ends the send that is under way.
  void Stop(std::string_view why);
  /// The same, with its dialog.
  void Cancel();
  /// The host has written the last packet and is ready for the next.
  void TriggerTimer();

  [[nodiscard]] const TransferRun& Run() const { return run_; }
  void Refuse(std::string_view why) { run_.Refuse(why); }

 private:
  static constexpr std::size_t kPacketSize = 18;

  enum class State {
    kIdle,     ///< no block-by-block send yet
    kWaiting,  ///< it has begun while a packet of the send before is on its way
    kRunning,  ///< each tick sends a block of the plan, the last one the end packet
    kEnded,    ///< the end packet was sent, or the send was stopped
  };

  /// A block as it was handed to the host. Another image may have come by the time the device takes
  /// it.
  struct HandedOver {
    int generation;
    int moves;  ///< steps back and forth until then
    int number;
    std::array<Byte, kBlockSize> bytes;
  };

  /// Runs a step of a send. A failure ends the send if so told: a user who sees a packet fail may
  /// go on. Without a dialog it ends the send in any case, and goes no further.
  template <class Body>
  void Step(bool ends, Body&& body);
  void Fail(int round, const std::string& why);
  [[nodiscard]] bool GoesOn(int round) const;
  [[nodiscard]] bool BasisHolds();
  /// Goes to a state. Timer1 has the interval of it.
  void Enter(State state);
  void Halt();
  void LosePacket();
  [[nodiscard]] std::string WhyNotBegun(const SendChoice& choice);
  void StartCombined(const SendChoice& choice);
  void SendArray(const SendChoice& choice);
  void PutListedBlocks();
  [[nodiscard]] std::vector<HandedOver> IncludedBlocks(const SendChoice& choice) const;
  [[nodiscard]] HandedOver HandOver(int number) const;
  void NoteTaken(const HandedOver& block);
  [[nodiscard]] std::vector<Byte> Plan(bool all_blocks, bool macros) const;
  void StartBlocks(const SendChoice& choice);
  void Tick();
  void SendNextBlock();
  void SendEndPacket();
  void SendPacket(std::array<Byte, kPacketSize>& packet);

  Context& context_;
  HostEvents& host_;
  UploadListener& dialog_;
  TransferRun run_{TransferKind::kSend, context_, host_};
  State state_ = State::kIdle;
  std::unique_ptr<Timer> Timer1;
  /// Ends the wait for the acknowledgement of a packet of a send that was stopped.
  std::unique_ptr<Timer> patience_;
  int round_ = 0;                             ///< number of the send that has begun last
  bool quiet_ = false;                        ///< it has no dialog
  SendBasis basis_;                           ///< what it rests on
  bool outstanding_ = false;                  ///< a packet has not been acknowledged
  std::optional<HandedOver> unacknowledged_;  ///< its block, also when it was given up
  std::vector<Byte> plan_;
  std::size_t next_ = 0;  ///< place in the plan; at its end, the end packet follows
  bool end_packet_went_ = false;
};

}  // namespace quorvel
