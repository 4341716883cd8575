#include "ui/menu/frm_menu.h"

#include <algorithm>
#include <utility>

#include "core/commit.h"
#include "resources/text_table.h"
#include "ui/context.h"
#include "ui/editing/editor.h"
#include "ui/menu/frm_msg.h"
#include "ui/menu/menu_items.h"
#include "ui/widgets/failure.h"

namespace quorvel {

namespace {

constexpr int kFormWidth = 320;
constexpr int kFormHeight = 240;
constexpr int kPopupDelay = 3;  // milliseconds, until the form has loaded or an action returned
constexpr int kManyLanguagesFirmware = 501;

}  // namespace

frm_Menu::frm_Menu(Context& context)
    : context_(context), menu_(std::make_shared<PopupMenu>(MainMenuItems())) {}

frm_Menu::~frm_Menu() { Unload(); }

void frm_Menu::Load() {
  Build();
  if (unloaded_) return;

  tmPopup =
      context_.platform.NewTimer([this] { context_.edges.Guard("tmPopup", [this] { PopUp(); }); });
  tmPopup->SetInterval(kPopupDelay);
  PopUpSoon();
}

void frm_Menu::Build() {
  context_.platform.TakeDown(*menu_);
  menu_ = std::make_shared<PopupMenu>(MainMenuItems());
  generation_ = context_.device.ImageGeneration();
  // The menu outlives its form for the moment in which a choice unloads the form.
  menu_->edge = [weak = weak_from_this(), life = context_.edges.life](const std::string& place,
                                                                      const Handler& handler) {
    const auto keep_context = life.lock();
    const auto keep = weak.lock();
    if (!keep || !handler) return;
    keep->context_.edges.Guard(place, [&handler] {
      const Handler copy = handler;
      copy();
    });
  };
  menu_->admit = [weak = weak_from_this(), life = context_.edges.life] {
    const auto keep_context = life.lock();
    const auto keep = weak.lock();
    return keep ? keep->Admit() : Answer::kOutdated;
  };
  BuildItems();
  SetUpKeyboardLock();
  SetUpForModel();
  SetUpCaptions();
  SetUpLanguages();
}

Answer frm_Menu::Admit() {
  if (generation_ == context_.device.ImageGeneration()) return Answer::kDone;
  PopUpSoon();
  return Answer::kOutdated;
}

void frm_Menu::PopUp() {
  const auto keep = shared_from_this();  // a text source may unload it meanwhile
  tmPopup->Stop();
  if (generation_ != context_.device.ImageGeneration()) Build();
  SetTicks();
  if (!unloaded_) context_.platform.PopUp(menu_, kFormWidth / 2, kFormHeight / 2);
}

void frm_Menu::PopUpSoon() {
  if (tmPopup != nullptr) tmPopup->Start();
}

void frm_Menu::Unload() {
  unloaded_ = true;
  tmPopup.reset();
  context_.platform.TakeDown(*menu_);
  // A choice that is still on its way is refused.
  for (MenuItem& item : menu_->Root().children) item.enabled = false;
  const auto take_off = [](std::shared_ptr<Dialog>& place) {
    const auto dialog = std::exchange(place, nullptr);
    if (dialog == nullptr) return;
    dialog->on_closed = nullptr;
    dialog->Close();
  };
  for (auto& [editor, dialog] : open_) take_off(dialog);
  take_off(fMsg);
}

void frm_Menu::BindItem(std::string_view item, Handler action) {
  menu_->Item(item).on_choose = std::move(action);
}

/// Items without an action here open editors that do not exist; they are shown as the model asks,
/// and disabled.
void frm_Menu::BuildItems() {
  for (const MenuEditor& editor : MenuEditors()) {
    if (EditorOf(editor.item, context_.device.env.identity) == nullptr) continue;
    BindItem(editor.item, [this, item = editor.item] { OpenEditor(item); });
  }
  BindItem("mnuActGrid", [this] { ChooseActiveZones(); });
  BindItem("mnu_LockKB", [this] { LockKeyboard(true); });
  BindItem("mnu_UnLock", [this] { LockKeyboard(false); });
  BindItem("mnu_Exit", [this] { Unload(); });
  for (int code = 0; code < kLanguages; ++code) {
    BindItem(LanguageItem(code), [this, code] { ChooseLanguage(code); });
  }
  DisableItemsWithoutAction(menu_->Root());
}

void frm_Menu::SetUpKeyboardLock() {
  MuxData& record = context_.device.Record();
  const bool lockable =
      context_.host.MenuHostCommId != 0 || context_.device.env.identity.IsTriplex();
  if (context_.host.MenuHostCommId != 0) HideItem("mnuActGrid");
  if (!lockable) {
    // These devices keep their keyboard locked while a host is connected; no flag is raised, so
    // this is not an edit.
    menu_->Item("mnu_UnLock").enabled = false;
    if (record.LockKeyBoard() == 0) {
      record.LockKeyBoard(1);
      context_.device.MenuLocksKeyboard = true;
    }
  }
}

/// What the device has may have changed since, by a step back or by name.
void frm_Menu::SetTicks() {
  const MuxData& record = context_.device.Record();
  TickKeyboardLock(record.LockKeyBoard() != 0);
  if (ticks_language_) TickLanguage(std::min<int>(record.MuxLang(), kLanguages - 1));
}

void frm_Menu::SetUpForModel() {
  for (const std::string_view item : HiddenItems(context_.device.env.identity)) HideItem(item);
}

void frm_Menu::SetUpCaptions() {
  for (const ItemText& text : kItemTexts) {
    menu_->Item(text.item).caption = context_.GetText(text.id);
  }
  const bool lumacast = context_.device.env.identity.LumacastModel;
  menu_->Item("mnu_VArchive").caption =
      context_.GetText(lumacast ? txt::kLumacastSetup : txt::kVideoArchiveSetup);
  menu_->Item("mnu_Exit").caption = context_.texts.Objects().objstExit;
}

void frm_Menu::SetUpLanguages() {
  ticks_language_ = false;
  const int firmware = context_.device.ComboArray.Header().Firmware();
  const Byte variant = context_.device.env.identity.VariantChar;
  if (firmware > kManyLanguagesFirmware) {
    ticks_language_ = true;
  } else if (variant == '1' || variant == '2') {
    TickLanguage(0);
    menu_->Item("mnu_French").enabled = false;
    menu_->Item("mnu_German").enabled = false;
    for (int code = 3; code < kLanguages - 1; ++code) HideItem(LanguageItem(code));
  }
}

void frm_Menu::OpenEditor(std::string_view item) {
  const MenuEditor* const editor = EditorOf(item, context_.device.env.identity);
  if (editor == nullptr) return;
  std::shared_ptr<Dialog>& place = open_[editor];
  try {
    if (place == nullptr) {
      const auto created = editor->create(context_);
      created->choose_item = [this](std::string_view other) { ChooseFromEditor(other); };
      place = created;
    }
  } catch (...) {
    if (editor->failure.empty()) throw;
    TellFailure(context_.platform, editor->failure);
    return;
  }
  Show(place);
}

std::shared_ptr<Editor> frm_Menu::Open(std::string_view item) {
  const auto keep = shared_from_this();  // a text source may unload it meanwhile
  if (unloaded_) return nullptr;
  if (generation_ != context_.device.ImageGeneration()) Build();
  const MenuEditor* const editor = EditorOf(item, context_.device.env.identity);
  if (unloaded_ || editor == nullptr) return nullptr;
  const MenuItem& it = menu_->Item(item);
  if (!it.visible || !it.enabled) return nullptr;
  if (tmPopup != nullptr) tmPopup->Stop();
  context_.platform.TakeDown(*menu_);
  OpenEditor(item);
  const auto place = open_.find(editor);
  return place == open_.end() ? nullptr : std::dynamic_pointer_cast<Editor>(place->second);
}

bool frm_Menu::OpenAt(const SettingPosition& position) {
  const auto keep = shared_from_this();
  const auto known = open_.find(EditorOf(position.item, context_.device.env.identity));
  const bool was_open = known != open_.end() && known->second != nullptr;
  const std::shared_ptr<Editor> editor = Open(position.item);
  if (editor == nullptr) return false;
  if (editor->Name() == position.window &&
      editor->GoTo(position.control, position.row, position.column)) {
    return true;
  }
  if (!was_open) editor->Close();
  return false;
}

void frm_Menu::Show(std::shared_ptr<Dialog>& place) {
  place->on_closed = [this, &place] {
    place.reset();
    // What an editor has opened goes back to the editor.
    if (!IsOpen()) PopUpSoon();
  };
  place->Show();
}

bool frm_Menu::IsOpen() const {
  const auto open = [](const auto& it) { return it.second != nullptr; };
  return fMsg != nullptr || std::any_of(open_.begin(), open_.end(), open);
}

void frm_Menu::ChooseFromEditor(std::string_view item) {
  const auto keep = shared_from_this();  // the host may end the control meanwhile
  const Handler action = menu_->Item(item).on_choose;
  if (action) action();
}

void frm_Menu::Commit(std::string_view item, const std::function<void(MuxData&)>& change) {
  context_.device.AsStep({menu_->Item(item).caption}, [&] {
    const CommitScope commit(context_.device.env.commit, CommitMenu);
    change(context_.device.Record());
  });
}

void frm_Menu::ChooseLanguage(int code) {
  Commit(LanguageItem(code), [code](MuxData& record) { record.MuxLang(static_cast<Byte>(code)); });
  ticks_language_ = true;
  PopUpSoon();
}

void frm_Menu::LockKeyboard(bool lock) {
  Commit(lock ? "mnu_LockKB" : "mnu_UnLock",
         [lock](MuxData& record) { record.LockKeyBoard(lock ? 1 : 0); });
  PopUpSoon();
}

void frm_Menu::ChooseActiveZones() {
  if (context_.host.MenuParam < 1) {
    if (fMsg == nullptr) fMsg = std::make_shared<frmMsg>(context_);
    Show(fMsg);
  } else if (ActGridRequest) {
    ActGridRequest();
  }
}

void frm_Menu::TickLanguage(int code) {
  for (int i = 0; i < kLanguages; ++i) menu_->Item(LanguageItem(i)).checked = i == code;
}

void frm_Menu::TickKeyboardLock(bool locked) {
  menu_->Item("mnu_LockKB").checked = locked;
  menu_->Item("mnu_UnLock").checked = !locked;
}

}  // namespace quorvel
