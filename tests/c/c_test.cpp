#include <functional>
#include <thread>

#include "tests/c/c_host.h"

namespace {

/// Calls a function with a handle and nothing else: NULL and 0.
template <class Handle, class... Others>
auto Bare(quorvel_result (*function)(Handle*, Others...)) {
  return [function](Handle* handle) { return function(handle, Others{}...); };
}

const std::vector<std::function<quorvel_result(quorvel_control*)>> kOfControl{
    Bare(quorvel_control_custom),
    Bare(quorvel_control_custom_with_string),
    Bare(quorvel_control_save_connected_info),
    Bare(quorvel_control_fill_combo_info),
    Bare(quorvel_control_fill_combo_blk),
    Bare(quorvel_control_fill_data_blk),
    Bare(quorvel_control_trigger_upload_timer),
    Bare(quorvel_control_update_act_grid),
    Bare(quorvel_control_use_pc_time),
    Bare(quorvel_control_set_use_pc_time),
    Bare(quorvel_control_properties),
    Bare(quorvel_control_set_properties),
    Bare(quorvel_control_properties_changed),
    Bare(quorvel_control_enabled),
    Bare(quorvel_control_set_enabled),
    Bare(quorvel_control_host_comm_id),
    Bare(quorvel_control_set_host_comm_id),
    Bare(quorvel_control_click),
    Bare(quorvel_control_double_click),
    Bare(quorvel_control_modified_blocks),
    Bare(quorvel_control_image),
    Bare(quorvel_control_edited_image),
    Bare(quorvel_control_settings),
    Bare(quorvel_control_differences),
    Bare(quorvel_control_describe_setting),
    Bare(quorvel_control_describe_settings),
    Bare(quorvel_control_get_setting),
    Bare(quorvel_control_set_setting),
    Bare(quorvel_control_setting_findings),
    Bare(quorvel_control_undo),
    Bare(quorvel_control_redo),
    Bare(quorvel_control_undo_text),
    Bare(quorvel_control_redo_text),
    Bare(quorvel_control_observe),
    Bare(quorvel_control_start_receive),
    Bare(quorvel_control_start_send),
    Bare(quorvel_control_cancel_transfer),
    Bare(quorvel_control_state),
    Bare(quorvel_control_load_settings),
    Bare(quorvel_control_save_settings),
    Bare(quorvel_control_load_defaults)};

const std::vector<std::function<quorvel_result(quorvel_platform*)>> kOfPlatform{
    Bare(quorvel_platform_run_until_idle),
    Bare(quorvel_platform_advance),
    Bare(quorvel_platform_elapsed),
    Bare(quorvel_platform_next_due),
    Bare(quorvel_platform_post),
    Bare(quorvel_platform_set_time),
    Bare(quorvel_platform_answer_message),
    Bare(quorvel_platform_answer_file),
    Bare(quorvel_platform_take_messages),
    Bare(quorvel_platform_take_file_requests),
    Bare(quorvel_platform_take_stalled),
    Bare(quorvel_platform_offer_texts),
    Bare(quorvel_platform_windows),
    Bare(quorvel_platform_widgets),
    Bare(quorvel_platform_widget),
    Bare(quorvel_platform_cell),
    Bare(quorvel_platform_menu),
    Bare(quorvel_user_choose_menu),
    Bare(quorvel_user_dismiss_menu),
    Bare(quorvel_user_click),
    Bare(quorvel_user_type),
    Bare(quorvel_user_select),
    Bare(quorvel_user_slide),
    Bare(quorvel_user_pick),
    Bare(quorvel_user_turn_page),
    Bare(quorvel_user_press),
    Bare(quorvel_user_release),
    Bare(quorvel_user_drag),
    Bare(quorvel_user_mark),
    Bare(quorvel_user_empty),
    Bare(quorvel_user_paste),
    Bare(quorvel_user_close_window)};

TEST(CInterface, RefusesNullInEveryPlace) {
  CHost host;
  host.Receive();
  for (const auto& call : kOfControl) {
    EXPECT_EQ(call(nullptr), QUORVEL_INVALID);
    EXPECT_STREQ(quorvel_last_error(), "the control is NULL");
    call(host.control);
  }
  for (const auto& call : kOfPlatform) {
    EXPECT_EQ(call(nullptr), QUORVEL_INVALID);
    EXPECT_STREQ(quorvel_last_error(), "the platform is NULL");
    call(host.platform);
  }
  EXPECT_EQ(quorvel_platform_new(nullptr, nullptr), QUORVEL_INVALID);
  EXPECT_EQ(quorvel_control_new(host.platform, nullptr, nullptr), QUORVEL_INVALID);
  quorvel_control_free(nullptr);
  quorvel_platform_free(nullptr);
}

TEST(CInterface, TakesStructsOfOtherSizes) {
  struct Newer {
    quorvel_time known{};
    std::uint64_t unknown = 0;
  };
  CHost host;
  for (const auto& [size, unknown, expected] :
       std::initializer_list<std::tuple<std::size_t, std::uint64_t, quorvel_result>>{
           {sizeof(quorvel_time), 1, QUORVEL_OK},
           {sizeof(Newer), 0, QUORVEL_OK},
           {sizeof(Newer), 1, QUORVEL_UNSUPPORTED},
           {0, 0, QUORVEL_INVALID},
           {12, 0, QUORVEL_INVALID},  // no version's: a member would be cut
           {24, 0, QUORVEL_OK}}) {    // an older one, which has no minutes
    const Newer given{{size, 2024, 2, 29, 7, size == 24 ? 99 : 45, 30}, unknown};
    EXPECT_EQ(quorvel_platform_set_time(host.platform, &given.known), expected) << size;
  }
}

TEST(CInterface, SaysHowLargeABufferMustBe) {
  CHost host;
  host.Receive();
  ASSERT_EQ(quorvel_control_set_setting(host.control, "CamInfo(0).title", "Front", nullptr),
            QUORVEL_OK);
  std::size_t needed = 0;
  std::array<char, 8> text{"????"};
  const auto get = [&](char* buffer, std::size_t size) {
    return quorvel_control_get_setting(host.control, "CamInfo(0).title", buffer, size, &needed);
  };
  EXPECT_EQ(get(nullptr, 0), QUORVEL_OK);
  EXPECT_EQ(needed, 8U);
  EXPECT_EQ(get(text.data(), 7), QUORVEL_TOO_SMALL);
  EXPECT_STREQ(text.data(), "????");
  EXPECT_EQ(get(text.data(), 8), QUORVEL_OK);
  EXPECT_STREQ(text.data(), "\"Front\"");

  EXPECT_EQ(quorvel_control_undo_text(host.control, nullptr, 0, &needed), QUORVEL_OK);
  EXPECT_GT(needed, 1U);
  EXPECT_EQ(quorvel_control_undo(host.control), QUORVEL_OK);
  EXPECT_EQ(quorvel_control_undo(host.control), QUORVEL_FAILED);
  EXPECT_EQ(quorvel_control_undo_text(host.control, text.data(), 1, &needed), QUORVEL_OK);
  EXPECT_EQ(quorvel_control_redo(host.control), QUORVEL_OK);

  std::uint8_t block = 0;
  ASSERT_EQ(quorvel_control_modified_blocks(host.control, &block, 1, nullptr), QUORVEL_OK);
  EXPECT_EQ(block, 1);
}

TEST(CInterface, SaysWhatItDoesNotKnow) {
  CHost host;
  std::string settings;
  const auto add = [](void* to, const quorvel_setting* it) {
    *static_cast<std::string*>(to) += std::string(it->name) + " = " + it->value + "\n";
    return 1;
  };
  const auto set = [&](const char* name, const char* value) {
    return quorvel_control_set_setting(host.control, name, value, nullptr);
  };
  EXPECT_EQ(quorvel_control_custom(host.control, 13, 0, 0), QUORVEL_UNSUPPORTED);
  EXPECT_STREQ(quorvel_last_error(), "there is no command 13");
  EXPECT_EQ(quorvel_control_custom(host.control, 65546, 0, 0), QUORVEL_UNSUPPORTED);
  EXPECT_EQ(quorvel_control_custom_with_string(host.control, 10, 0, 0, ""), QUORVEL_UNSUPPORTED);
  EXPECT_EQ(set("AlarmMode", "0"), QUORVEL_NO_IMAGE);
  EXPECT_EQ(quorvel_control_differences(host.control, {}, 0, [](auto...) { return 0; }, {}),
            QUORVEL_NO_IMAGE);
  host.Receive();
  EXPECT_EQ(set("NoSuch", "0"), QUORVEL_NOT_FOUND);
  EXPECT_STREQ(quorvel_last_error(), "NoSuch: no such setting");
  EXPECT_EQ(set("CamInfo(0).title", "a title that is longer than its twelve"), QUORVEL_NOT_A_VALUE);
  EXPECT_EQ(host.Setting("NoSuch"), "there is no setting NoSuch");
  EXPECT_EQ(quorvel_control_differences(host.control, host.device.data(), 5,
                                        [](auto...) { return 0; }, {}),
            QUORVEL_FAILED);
  EXPECT_EQ(quorvel_control_settings(host.control, "TitleDisplay", add, &settings), QUORVEL_OK);
  EXPECT_EQ(settings, "TitleDisplay(0) = 0\n");  // it had seen enough
  std::thread([] { EXPECT_STREQ(quorvel_last_error(), ""); }).join();
  EXPECT_STREQ(quorvel_last_error(), "the bytes are no image");
}

TEST(CInterface, AnswersTheUser) {
  CHost host;
  host.Receive();
  EXPECT_EQ(quorvel_user_click(host.platform, "cmd_OK"), QUORVEL_NOT_FOUND);
  EXPECT_EQ(quorvel_user_dismiss_menu(host.platform), QUORVEL_NOT_FOUND);
  host.Open("mnu_CSetup");
  const auto user = [&](auto verb, auto... words) {
    const quorvel_result result = verb(host.platform, words...);
    return std::to_string(result) + " " + (result == QUORVEL_OK ? "" : quorvel_last_error());
  };
  EXPECT_EQ(user(quorvel_user_click, "cmdNone"), "5 no open window has a control cmdNone");
  EXPECT_EQ(user(quorvel_user_click, "frm_None.cmd_OK"), "5 no window frm_None is open");
  EXPECT_EQ(user(quorvel_user_click, "m_CameraTitle(0)"),
            "45 m_CameraTitle(0) is nothing to click");
  EXPECT_EQ(user(quorvel_user_type, "m_CameraTitle(9)", "x"), "40 m_CameraTitle(9) is hidden");
  EXPECT_EQ(user(quorvel_user_turn_page, "SSTab1", 99), "42 SSTab1 has no such place");
  EXPECT_EQ(user(quorvel_user_close_window, "frm_None"), "5 no window frm_None is open");
  EXPECT_EQ(user(quorvel_user_close_window, nullptr), "0 ");
  EXPECT_EQ(user(quorvel_user_close_window, nullptr), "5 no window is open");
  EXPECT_EQ(user(quorvel_user_choose_menu, "mnu_CSetup"), "5 no menu is up");
  host.OpenMenu();
  EXPECT_EQ(user(quorvel_user_choose_menu, "mnu_None"), "5 the menu has no item mnu_None");
  EXPECT_EQ(user(quorvel_user_choose_menu, "mnu_Factory"), "42 mnu_Factory has no such place");
}

TEST(CInterface, ShowsTheScreen) {
  CHost host;
  host.Receive();
  host.Open("mnu_CSetup");
  ASSERT_EQ(quorvel_user_type(host.platform, "m_CameraTitle(0)", "T\xC3\xBCr"), QUORVEL_OK);
  std::string seen;
  const auto widget = [](void* to, const quorvel_widget* it) {
    auto& text = *static_cast<std::string*>(to);
    text += std::string(it->name) + " " + it->kind_name + " " + it->value;
    text += " " + std::to_string(it->item_count) + "," + std::to_string(it->rows);
    text += it->showing != 0 ? "\n" : " off\n";
    return 0;
  };
  EXPECT_EQ(quorvel_platform_widget(host.platform, "m_CameraTitle(0)", widget, &seen), QUORVEL_OK);
  EXPECT_EQ(quorvel_platform_widget(host.platform, "SSTab1", widget, &seen), QUORVEL_OK);
  EXPECT_EQ(quorvel_platform_widget(host.platform, "lstSnlGain", widget, &seen), QUORVEL_OK);
  EXPECT_EQ(seen,
            "m_CameraTitle(0) text box T\xC3\xBCr 0,0\n"
            "SSTab1 tabs *0 \"Camera Setup\", 1 \"Camera AGC\", 2 \"Other Settings\" 3,0\n"
            "lstSnlGain list 0 \"50\" of 101 101,0 off\n");
  std::array<char, 40> cell{};
  const auto get = [&](int row) {
    return quorvel_platform_cell(host.platform, "MSFG_SnlGain", row, 0, cell.data(), 40, nullptr);
  };
  EXPECT_EQ(get(1), QUORVEL_OK);
  EXPECT_STREQ(cell.data(), "1");
  EXPECT_EQ(get(99), QUORVEL_NO_SUCH_PLACE);
  EXPECT_EQ(quorvel_user_click(host.platform, "cmd_OK"), QUORVEL_OK);
  EXPECT_EQ(host.Setting("CamInfo(0).title"), "\"T\\xFCr\"");
}

TEST(CInterface, TransfersWithoutDialogs) {
  CHost host;
  quorvel_state state{};
  state.size = sizeof state;
  quorvel_send_choice changes{};
  changes.size = sizeof changes;
  changes.modified_only = 1;
  EXPECT_EQ(quorvel_control_start_send(host.control, nullptr), QUORVEL_FAILED);
  EXPECT_EQ(host.ends, "2 2 " + std::string(quorvel_last_error()) + "\n");
  host.ends.clear();

  host.on_request = [&] {
    if (host.progress[1] != 100) return;
    EXPECT_EQ(quorvel_control_state(host.control, &state), QUORVEL_OK);
    quorvel_control_cancel_transfer(host.control);
  };
  EXPECT_EQ(quorvel_control_start_receive(host.control), QUORVEL_OK);
  EXPECT_EQ(std::vector({state.has_image, state.transfer, state.combined, state.done, state.total}),
            std::vector({0, 1, 0, 100, 225}));
  EXPECT_EQ(host.ends.substr(0, 4), "1 1 ");
  host.on_request = {};
  host.progress = {};
  host.ends.clear();

  EXPECT_EQ(quorvel_control_start_receive(host.control), QUORVEL_OK);
  EXPECT_EQ(quorvel_control_set_setting(host.control, "CamInfo(0).title", "Yard", nullptr), 0);
  EXPECT_EQ(quorvel_control_start_send(host.control, &changes), QUORVEL_OK);
  std::int64_t due = 0;
  EXPECT_EQ(quorvel_platform_next_due(host.platform, &due), QUORVEL_OK);
  EXPECT_EQ(due, 50);
  EXPECT_EQ(quorvel_platform_run_until_idle(host.platform), QUORVEL_OK);
  EXPECT_EQ(host.ends, "1 0 \n2 0 \n");
  EXPECT_EQ(host.written, std::vector<std::uint8_t>{1});
  EXPECT_EQ(std::memcmp(host.device.data(), "Yard", 4), 0);
}

TEST(CInterface, MovesSettingsFilesAsBytes) {
  CHost host;
  std::vector<std::uint8_t> file(4000);
  std::size_t needed = 0;
  std::string note;
  const auto take = [](void* to, const char* text) {
    *static_cast<std::string*>(to) = text;
    return 0;
  };
  EXPECT_EQ(quorvel_control_load_defaults(host.control, 17, 7, "T", '2'), QUORVEL_FAILED);
  EXPECT_EQ(quorvel_control_load_defaults(host.control, 9, 7, "T", '2'), QUORVEL_OK);
  EXPECT_EQ(quorvel_control_set_setting(host.control, "CamInfo(8).title", "Gate", nullptr), 0);
  EXPECT_EQ(quorvel_control_save_settings(host.control, file.data(), file.size(), &needed), 0);
  EXPECT_EQ(needed, 3200U);
  CHost other;
  EXPECT_EQ(quorvel_control_load_settings(other.control, file.data(), 100, take, &note),
            QUORVEL_FAILED);
  EXPECT_EQ(quorvel_control_load_settings(other.control, file.data(), needed, take, &note), 0);
  EXPECT_EQ(note, "");
  EXPECT_EQ(other.Setting("CamInfo(8).title"), host.Setting("CamInfo(8).title"));
}

/// What a host may do in the middle of a call: free the control, the platform, or both.
TEST(CInterface, MayBeFreedFromInsideItsCallbacks) {
  const auto free_all = [](CHost& host) {
    host.FreeControl();
    quorvel_platform_free(std::exchange(host.platform, nullptr));
  };
  for (const auto at : {"request", "uploaded", "modal", "progress", "ended", "menu"}) {
    CHost host;
    const std::string place = at;
    if (place == "request") host.on_request = [&] { free_all(host); };
    if (place == "progress") host.on_progress = [&] { free_all(host); };
    if (place == "ended") host.on_ended = [&] { free_all(host); };
    if (place == "uploaded") host.on_uploaded = [&] { free_all(host); };
    host.at_modal = [&](const char*) {
      free_all(host);
      return 1;
    };
    if (place != "menu") {
      quorvel_control_custom(host.control, QUORVEL_COMMAND_RECEIVE, 0, 0);
    } else {
      host.Receive();
      host.Open("mnu_CSetup");
      quorvel_platform_widgets(
          host.platform, "frm_CameraSetup",
          [](void* user, const quorvel_widget* it) {
            auto& freed = *static_cast<CHost*>(user);
            freed.FreeControl();
            return std::strlen(it->name) == 0 ? 1 : 0;
          },
          &host);
      EXPECT_EQ(quorvel_user_click(host.platform, "cmd_OK"), QUORVEL_NOT_FOUND);
      free_all(host);
    }
    EXPECT_EQ(host.platform, nullptr) << at;
  }
}

TEST(CInterface, KeepsControlsApart) {
  CHost one;
  CHost two(one.platform);
  one.Receive();
  two.device.at(0) = 'x';
  two.Receive();
  EXPECT_EQ(quorvel_control_set_setting(one.control, "CamInfo(0).title", "One", nullptr), 0);
  EXPECT_EQ(one.Setting("CamInfo(0).title"), "\"One\"");
  EXPECT_EQ(two.Setting("CamInfo(0).title").substr(0, 3), "\"x\\");
  std::vector<std::thread> threads;
  for (const char* title : {"A", "B"}) {
    threads.emplace_back([title] {
      CHost host;
      host.Receive();
      quorvel_control_set_setting(host.control, "CamInfo(3).title", title, nullptr);
      EXPECT_EQ(host.Setting("CamInfo(3).title"), '"' + std::string(title) + '"');
    });
  }
  for (auto& it : threads) it.join();
}

}  // namespace
