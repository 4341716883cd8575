#pragma once

#include <functional>
#include <map>
#include <memory>
#include <string_view>

#include "quorvel/platform.h"
#include "quorvel/review.h"
#include "quorvel/widgets.h"
#include "ui/menu/menu_editors.h"

namespace quorvel {

struct Context;
class MuxData;

/// The popup menu: the user's entry to every editor, and the language and keyboard-lock commands.
/// The form itself is never seen; it shows the menu in the middle of its own area.
class frm_Menu : public std::enable_shared_from_this<frm_Menu> {
 public:
  explicit frm_Menu(Context& context);
  ~frm_Menu();
  frm_Menu(const frm_Menu&) = delete;
  frm_Menu& operator=(const frm_Menu&) = delete;

  /// Sets the items up for the model and the host, and starts the timer that pops the menu up. A
  /// menu whose image has been replaced chooses nothing; that of the present one pops up next.
  void Load();
  /// Sets the items up without popping the menu up.
  void LoadUnseen() { Build(); }
  /// Opens an editor as a choice of its item does, or brings it to the front, and goes to a
  /// position in it. False where the menu would not, or the editor has no such position: then
  /// nothing stays open that was not.
  [[nodiscard]] bool OpenAt(const SettingPosition& position);
  /// Takes menu and editors off the screen; what an open editor holds is discarded as by Cancel.
  void Unload();
  [[nodiscard]] bool IsUnloaded() const { return unloaded_; }

  /// The user wants to edit activity zones, and the host has a network link.
  Handler ActGridRequest;

 private:
  /// The editor of an item, in front; a null pointer where the menu would not open it.
  [[nodiscard]] std::shared_ptr<Editor> Open(std::string_view item);
  /// A menu for the present image, in place of the one before.
  void Build();
  [[nodiscard]] Answer Admit();
  void PopUp();
  void BuildItems();
  void BindItem(std::string_view item, Handler action);
  void PopUpSoon();
  void SetUpKeyboardLock();
  void SetUpForModel();
  void SetUpCaptions();
  void SetUpLanguages();
  void SetTicks();

  /// Opens an item's editor, or brings it to the front when it is open.
  void OpenEditor(std::string_view item);
  /// Shows a dialog that the menu keeps in `place` until it closes.
  void Show(std::shared_ptr<Dialog>& place);
  /// Whether a dialog of the menu is on screen.
  [[nodiscard]] bool IsOpen() const;
  /// An item that an editor offers, too.
  void ChooseFromEditor(std::string_view item);
  /// Changes the record by an item, as one step.
  void Commit(std::string_view item, const std::function<void(MuxData&)>& change);
  void ChooseLanguage(int code);
  void LockKeyboard(bool lock);
  void ChooseActiveZones();
  void TickLanguage(int code);
  void TickKeyboardLock(bool locked);
  void HideItem(std::string_view name) { menu_->Item(name).visible = false; }

  Context& context_;
  std::shared_ptr<PopupMenu> menu_;
  int generation_ = 0;  ///< of the image that the menu is for
  std::unique_ptr<Timer> tmPopup;
  /// What is open, one instance of each editor.
  std::map<const MenuEditor*, std::shared_ptr<Dialog>> open_;
  std::shared_ptr<Dialog> fMsg;
  bool unloaded_ = false;
  bool ticks_language_ = false;
};

}  // namespace quorvel
