#include "bindings/c/handles.h"

namespace quorvel::c {

namespace {

quorvel_result ResultOf(Answer answer) {
  switch (answer) {
    case Answer::kDone: return QUORVEL_OK;
    case Answer::kHidden: return QUORVEL_HIDDEN;
    case Answer::kDisabled: return QUORVEL_DISABLED;
    case Answer::kNoSuchPlace: return QUORVEL_NO_SUCH_PLACE;
    case Answer::kNotAChoice: return QUORVEL_NOT_A_CHOICE;
    case Answer::kOutdated: return QUORVEL_OUTDATED;
    case Answer::kNoSuchControl: return QUORVEL_NOT_FOUND;
    case Answer::kOtherKind: return QUORVEL_OTHER_KIND;
  }
  return QUORVEL_FAILED;
}

}  // namespace

void Require(const VerbAnswer& done) {
  if (done.answer != Answer::kDone) Refuse(ResultOf(done.answer), done.cause);
}

}  // namespace quorvel::c

using namespace quorvel::c;

namespace {

/// Has the platform's user do something with the control of that name.
template <class Verb>
quorvel_result Act(quorvel_platform* platform, const char* name, const Verb& verb) {
  return Run([&] {
    const auto held = Of(platform);
    Require(verb(held->User(), Given(name, "the name")));
  });
}

}  // namespace

quorvel_result quorvel_user_choose_menu(quorvel_platform* platform, const char* item) {
  return Run([&] {
    const auto held = Of(platform);
    const std::string name = Given(item, "the item");
    if (!held->MenuIsUp()) Refuse(QUORVEL_NOT_FOUND, "no menu is up");
    try {
      static_cast<void>(held->Menu().Item(name));
    } catch (const std::invalid_argument& unknown) {
      Refuse(QUORVEL_NOT_FOUND, unknown.what());
    }
    const quorvel::Answer answer = held->ChooseMenu(name);
    Require({answer, name + " " + Describe(answer)});
  });
}

quorvel_result quorvel_user_dismiss_menu(quorvel_platform* platform) {
  return Run([&] {
    const auto held = Of(platform);
    if (!held->MenuIsUp()) Refuse(QUORVEL_NOT_FOUND, "no menu is up");
    held->DismissMenu();
  });
}

quorvel_result quorvel_user_click(quorvel_platform* platform, const char* name) {
  return Act(platform, name, [](const auto& user, const char* at) { return user.Click(at); });
}

quorvel_result quorvel_user_type(quorvel_platform* platform, const char* name, const char* text) {
  return Act(platform, name, [text](const auto& user, const char* at) {
    return user.Type(at, Given(text, "the text"));
  });
}

quorvel_result quorvel_user_select(quorvel_platform* platform, const char* name, int32_t item) {
  return Act(platform, name,
             [item](const auto& user, const char* at) { return user.Select(at, item); });
}

quorvel_result quorvel_user_slide(quorvel_platform* platform, const char* name, int32_t value) {
  return Act(platform, name,
             [value](const auto& user, const char* at) { return user.Slide(at, value); });
}

quorvel_result quorvel_user_pick(quorvel_platform* platform, const char* name, const char* text) {
  return Act(platform, name, [text](const auto& user, const char* at) {
    return user.Pick(at, Given(text, "the text"));
  });
}

quorvel_result quorvel_user_turn_page(quorvel_platform* platform, const char* name, int32_t page) {
  return Act(platform, name,
             [page](const auto& user, const char* at) { return user.TurnPage(at, page); });
}

quorvel_result quorvel_user_press(quorvel_platform* platform, const char* name, int32_t row,
                                  int32_t column) {
  return Act(platform, name, [row, column](const auto& user, const char* at) {
    return user.Press(at, row, column);
  });
}

quorvel_result quorvel_user_release(quorvel_platform* platform, const char* name, int32_t first,
                                    int32_t last) {
  return Act(platform, name, [first, last](const auto& user, const char* at) {
    return user.Release(at, first, last);
  });
}

quorvel_result quorvel_user_drag(quorvel_platform* platform, const char* name, int32_t column,
                                 int32_t first, int32_t last) {
  return Act(platform, name, [column, first, last](const auto& user, const char* at) {
    return user.Drag(at, column, first, last);
  });
}

quorvel_result quorvel_user_mark(quorvel_platform* platform, const char* name, int32_t row) {
  return Act(platform, name,
             [row](const auto& user, const char* at) { return user.Mark(at, row); });
}

quorvel_result quorvel_user_empty(quorvel_platform* platform, const char* name) {
  return Act(platform, name, [](const auto& user, const char* at) { return user.Empty(at); });
}

quorvel_result quorvel_user_paste(quorvel_platform* platform, const char* name, const char* text) {
  return Act(platform, name, [text](const auto& user, const char* at) {
    return user.Paste(at, Given(text, "the text"));
  });
}

quorvel_result quorvel_user_undo(quorvel_platform* platform, const char* window) {
  return Run([&] {
    const auto held = Of(platform);
    Require(held->User().Undo(OrEmpty(window)));
  });
}

quorvel_result quorvel_user_redo(quorvel_platform* platform, const char* window) {
  return Run([&] {
    const auto held = Of(platform);
    Require(held->User().Redo(OrEmpty(window)));
  });
}

quorvel_result quorvel_user_put_back(quorvel_platform* platform, const char* name,
                                     int32_t to_device) {
  const auto to = to_device != 0 ? quorvel::PutBackTo::kDevice : quorvel::PutBackTo::kOpened;
  return Act(platform, name,
             [to](const auto& user, const char* at) { return user.PutBack(at, to); });
}

quorvel_result quorvel_user_close_window(quorvel_platform* platform, const char* window) {
  return Run([&] {
    const auto held = Of(platform);
    Require(held->User().CloseWindow(OrEmpty(window)));
  });
}
