#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "quorvel/control_surface.h"
#include "quorvel/events.h"
#include "quorvel/export.h"
#include "quorvel/platform.h"
#include "quorvel/property_bag.h"
#include "quorvel/review.h"
#include "quorvel/settings.h"
#include "quorvel/transfer.h"

namespace quorvel {

class Component;

/// The identifier under which class-based hosts create the control.
inline constexpr std::string_view kMainMenuCtrlClassId = "Quorvel.MainMenuCtrl";

/// The configuration menu of a video multiplexer or multiplexer-recorder, as a control that a host
/// application embeds. The host owns the link to the device: the control asks for blocks and hands
/// blocks back through MainMenuEvents, the host answers through the calls below. Results travel in
/// events; every call of that contract returns 0, and no call throws. All calls are made on one
/// thread. Each control edits a device of its own.
class QUORVEL_API MainMenuCtrl {
 public:
  /// Both must outlive the control. A new control has no font and no record yet: call
  /// InitProperties, or ReadProperties for one that was saved.
  MainMenuCtrl(Platform& platform, MainMenuEvents& host);
  ~MainMenuCtrl();
  MainMenuCtrl(const MainMenuCtrl&) = delete;
  MainMenuCtrl& operator=(const MainMenuCtrl&) = delete;

  /// A control newly placed in a host: ambient font, HostCommId 0, the size of its label.
  void InitProperties();
  /// Restores "Enabled" (True), "Font" (the ambient font) and "HostCommId" (0); in brackets the
  /// value of a property that the bag lacks or holds with another type.
  void ReadProperties(const PropertyBag& bag);
  /// Stores the same three.
  void WriteProperties(PropertyBag& bag) const;
  /// True when a property was set since the properties were last read or written.
  [[nodiscard]] bool PropertiesChanged() const;

  /// Gives a numbered command:
  ///   10 receive the device's image       11 send to the device
  ///   12 restore a settings file          14 save a settings file
  ///   15 open the popup menu; param1: 1 when the host has a network link, else 0
  ///   16 build factory defaults           17 raise ActGridData for camera param1
  ///   18 param1: device family code; param2: 1 when captions name a DVR, else 0
  /// Other numbers do nothing. A receive, a restore and the building of defaults each begin anew,
  /// whatever of them was under way.
  std::int32_t Custom(std::int16_t command, std::int32_t param1, std::int32_t param2);
  /// 191: takes the texts from a new object of class `str` (see Platform::Classes), whose method
  /// "getresourcestring" returns the text of an id. Other commands do nothing.
  std::int32_t CustomWithString(std::int16_t command, std::int32_t param1, std::int32_t param2,
                                std::string_view str);

  /// Identity of the connected device for the block-by-block exchange: [1] cameras, [2] model code,
  /// from [3] the model name. Shorter than 4 bytes: nothing changes.
  std::int32_t SaveConnectedInfo(std::span<const std::uint8_t> data);
  /// Selects the combined exchange and states its sizes: [0..1] macro record size, [2] macro
  /// records, [3..4] blocks, [5..6] firmware version; 16-bit values most significant byte first.
  /// Shorter than 7 bytes: nothing changes.
  std::int32_t FillComboInfo(std::span<const std::uint8_t> data);
  /// The answer to RequestComboBlocks: header of 13 bytes, block image, macro data.
  std::int32_t FillComboBlk(std::span<const std::uint8_t> data);
  /// The answer to RequestBlk: [0] block number, then its 16 bytes. With non-zero HostCommId the
  /// whole image and one further byte that is not read.
  std::int32_t FillDataBlk(std::span<const std::uint8_t> bdata);
  /// An edited activity grid: [0] camera, 0-based, then 32 grid bytes. Changed bytes list their
  /// blocks. Shorter than 33 bytes, or a camera that the device lacks: nothing changes.
  std::int32_t UpdateActGrid(std::span<const std::uint8_t> bdata);
  /// The host has written the last packet of DownLoadData and is ready for the next.
  std::int32_t TriggerUploadTimer();

  // Transfers without dialogs. They return at once and go on with the host's answers to the events,
  // which may come from inside the events already.

  /// Who hears how transfers go on, those of commands 10 and 11 included. It must outlive the
  /// control, or be taken back with a null pointer.
  void Observe(TransferObserver* observer);
  /// Begins to receive the device's image: asks for block 1 or the combined array. The rest is as
  /// with command 10, but nothing is shown; what goes wrong is told to the observer. A receive that
  /// is under way begins anew. One that is never answered stays under way until it is cancelled.
  /// False when it cannot begin: during a send.
  bool StartReceive();
  /// Begins to send what was chosen, with the checks, the pace and the rest of command 11, but
  /// nothing is shown or asked. A send that is under way begins anew. It has finished when every
  /// block was acknowledged and the end packet was handed over, or SendComboBlocks has returned.
  /// False when it cannot begin: without an image or anything to send, when the data does not fit
  /// the device, when macros have another size and accept_macro_size is not set, during a receive.
  bool StartSend(const SendChoice& choice);
  /// Stops the transfer that State tells of, and closes its dialog if it has one. Nothing while
  /// none is under way.
  void CancelTransfer();
  [[nodiscard]] ControlState State() const;

  /// Loads the bytes of a settings file as command 12 does, but shows, asks and raises nothing: the
  /// host asked for it and has the answer. As there, a receive that is under way is stopped, a send
  /// ends before its next packet, and what was loaded is compared with the connected device before
  /// it is sent.
  [[nodiscard]] LoadAnswer LoadSettings(std::span<const std::uint8_t> file);
  /// The bytes that command 14 would write: the image, or in the combined exchange the array, with
  /// everything that was edited. As there, the image holds it from now on. Empty without an image.
  [[nodiscard]] std::vector<std::uint8_t> SaveSettings();
  /// Loads the factory defaults of a device that need not be connected, as command 16 builds them:
  /// number of cameras, 16 at most; model code, whose bit 7 is not read; name as the device holds
  /// it, 14 characters at most; variant character. In the combined exchange they have as many
  /// blocks as FillComboInfo has stated. For the rest it is like LoadSettings: the connected device
  /// may be another one.
  [[nodiscard]] LoadAnswer LoadDefaults(std::uint8_t cameras, std::uint8_t model_code,
                                        std::string_view model_name, char variant);

  /// Why the configuration cannot be sent to the device that the host has stated, as a sentence
  /// that names both: what a send compares first. A host that backs the device up before a send
  /// asks before that. Empty when it can, or when there is no configuration.
  [[nodiscard]] std::string DeviceMismatch() const;

  /// Whether the device's clock takes the computer's time when its block, 61, is built for a send:
  /// because the user has ticked it in the time and date editor, which then has OK set it and
  /// begins anew when it opens, or because the host has set it here.
  [[nodiscard]] bool UsePcTime() const;
  /// True: lists block 61 as modified with the computer's date and has it take the time, as that
  /// editor does. False: the time that the configuration holds is sent. Without an image nothing
  /// changes.
  void UsePcTime(bool use);

  /// Takes back what was accepted last: an editor's OK, a command of the menu, zones, a setting by
  /// name, a restored file or factory defaults; settings, modified blocks and what tells the device
  /// of changes together. Redo does it again. False when there is nothing to take back, or while a
  /// send is under way. An image from the device begins anew. What a device has taken meanwhile and
  /// is another now is listed as modified.
  bool Undo();
  bool Redo();
  /// What Undo would take back, and Redo do again, in the user's words: "Camera Setup". Empty when
  /// there is nothing.
  [[nodiscard]] std::string UndoText() const;
  [[nodiscard]] std::string RedoText() const;

  /// Whether the device has given an image, and one of the model of the present one: what it holds
  /// is known then, as far as it has told.
  [[nodiscard]] bool KnowsDevice() const;
  /// What differs from the device, in the words of the editors: from its image as it came, with
  /// what it has taken since; where that is not known, from the present image as it came. Blocks
  /// that only one of the two has do not count. A line for each control or cell, in the order of
  /// the menu, then by page, control and line; what no editor shows comes last, in block order, by
  /// name and value as Settings() tells them. Empty without an image. The texts are asked for while
  /// it is made, unless they are known.
  [[nodiscard]] std::vector<ReviewLine> Review();
  /// What differs from an image or a settings file of the same model. What only one of the two has
  /// does not count.
  [[nodiscard]] FileReview Review(std::span<const std::uint8_t> file);
  /// Every setting that the device has, each control or cell once; what no editor shows comes last.
  [[nodiscard]] std::vector<SettingRow> AllSettings();
  /// Sets what stands behind a line as it was, as one step that Undo takes back. A block that is
  /// again as the device has it is no longer listed as modified, and no mark tells the device of
  /// it. False when something of it cannot be set, without an image, or while a send is under way.
  bool TakeBack(const ReviewLine& line);
  /// Opens the editor in which a setting stands, as the menu does, with its page in front, its cell
  /// current and the focus in its control. False when the menu would not open it, or the control is
  /// not to be seen.
  bool OpenAt(const SettingPosition& position);
  /// Takes the menu and its editors off the screen, as before a host's own window goes. What an
  /// open editor holds is discarded as by its CANCEL: a host asks first.
  void CloseMenu();

  /// Draws the surface anew.
  void Refresh();
  [[nodiscard]] bool Enabled() const;
  void Enabled(bool enabled);
  [[nodiscard]] quorvel::Font Font() const;
  void Font(const quorvel::Font& font);
  /// 0: interactive host; otherwise the host moves the whole image in one call.
  [[nodiscard]] std::uint8_t HostCommId() const;
  void HostCommId(std::uint8_t id);

  /// What the host places in its window.
  [[nodiscard]] ControlSurface& Surface();

  /// Numbers of the blocks that hold changes, in the order of the changes.
  [[nodiscard]] std::vector<std::uint8_t> ModifiedBlocks() const;
  /// The settings that the device has, as edited so far, by name and value in block order. A
  /// pattern may hold "*" and "?"; one without them is looked for anywhere in the name, case aside;
  /// an empty one gives all. Nothing before an image has arrived.
  [[nodiscard]] std::vector<SettingLine> Settings(std::string_view pattern = {}) const;
  /// What can be said of a setting, or of every one whose name fits a pattern; nothing where the
  /// device has none of that name.
  [[nodiscard]] std::optional<SettingDescription> DescribeSetting(std::string_view name) const;
  [[nodiscard]] std::vector<SettingDescription> DescribeSettings(
      std::string_view pattern = {}) const;
  /// The value of a setting as Settings() lists it; nothing where the device has none of that name.
  [[nodiscard]] std::optional<std::string> GetSetting(std::string_view name) const;
  /// Sets a setting as its editor would: the blocks that carry it are listed as modified, and what
  /// tells the device of a change is set. `value` is UTF-8: "yes" or "no" for a flag, a number as
  /// an installer sees it with its unit or without, a code's text, or a text, also in quotes as
  /// Settings() lists it.
  SetAnswer SetSetting(std::string_view name, std::string_view value);
  /// The settings that hold what they cannot have.
  [[nodiscard]] std::vector<SettingFinding> SettingFindings() const;
  /// The settings that differ from those of `image`, with the blocks that carry them; `value` is
  /// the control's, `other` the image's. No answer when there is nothing to compare: no image has
  /// arrived in the control, or `image` is not one that can be decoded.
  [[nodiscard]] std::optional<std::vector<SettingDifference>> DifferencesFrom(
      std::span<const std::uint8_t> image) const;
  /// The configuration image as last received and encoded, block 1 first.
  [[nodiscard]] std::vector<std::uint8_t> Image() const;
  /// The image as it would be sent now: with what was edited in the blocks that are listed.
  [[nodiscard]] std::vector<std::uint8_t> EditedImage() const;

 private:
  std::shared_ptr<Component> component_;
};

/// Creates a control by class identifier, with its properties initialised; nothing for an unknown
/// identifier.
[[nodiscard]] QUORVEL_API std::unique_ptr<MainMenuCtrl> CreateControl(std::string_view class_id,
                                                                      Platform& platform,
                                                                      MainMenuEvents& host);

}  // namespace quorvel
