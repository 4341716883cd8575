#include <functional>
#include <thread>

#include "tests/c/c_host.h"

namespace {

/// Calls functions with NULL for everything, then with a handle and NULL for the rest.
template <class Handle, class... Functions>
void ExpectNullRefused(Handle* handle, const std::string& words, Functions... functions) {
  const auto call = [&]<class... Others>(quorvel_result (*function)(Handle*, Others...)) {
    EXPECT_EQ(function(nullptr, Others{}...), QUORVEL_INVALID);
    EXPECT_EQ(quorvel_last_error(), words);
    function(handle, Others{}...);
  };
  (call(functions), ...);
}

TEST(CInterface, RefusesNullInEveryPlace) {
  CHost host;
  host.Receive();
  ExpectNullRefused(
      host.control, "the control is NULL", quorvel_control_custom,
      quorvel_control_custom_with_string, quorvel_control_save_connected_info,
      quorvel_control_fill_combo_info, quorvel_control_fill_combo_blk,
      quorvel_control_fill_data_blk, quorvel_control_trigger_upload_timer,
      quorvel_control_update_act_grid, quorvel_control_use_pc_time, quorvel_control_set_use_pc_time,
      quorvel_control_properties, quorvel_control_set_properties,
      quorvel_control_properties_changed, quorvel_control_enabled, quorvel_control_set_enabled,
      quorvel_control_host_comm_id, quorvel_control_set_host_comm_id, quorvel_control_click,
      quorvel_control_double_click, quorvel_control_modified_blocks, quorvel_control_image,
      quorvel_control_edited_image, quorvel_control_settings, quorvel_control_differences,
      quorvel_control_describe_setting, quorvel_control_describe_settings,
      quorvel_control_get_setting, quorvel_control_set_setting, quorvel_control_setting_findings,
      quorvel_control_undo, quorvel_control_redo, quorvel_control_undo_text,
      quorvel_control_redo_text, quorvel_control_observe, quorvel_control_start_receive,
      quorvel_control_start_send, quorvel_control_cancel_transfer, quorvel_control_state,
      quorvel_control_load_settings, quorvel_control_save_settings, quorvel_control_load_defaults);
  ExpectNullRefused(
      host.platform, "the platform is NULL", quorvel_platform_run_until_idle,
      quorvel_platform_advance, quorvel_platform_elapsed, quorvel_platform_next_due,
      quorvel_platform_post, quorvel_platform_set_time, quorvel_platform_answer_message,
      quorvel_platform_answer_file, quorvel_platform_take_messages,
      quorvel_platform_take_file_requests, quorvel_platform_take_stalled,
      quorvel_platform_offer_texts, quorvel_platform_windows, quorvel_platform_widgets,
      quorvel_platform_widget, quorvel_platform_cell, quorvel_platform_menu,
      quorvel_user_choose_menu, quorvel_user_dismiss_menu, quorvel_user_click, quorvel_user_type,
      quorvel_user_select, quorvel_user_slide, quorvel_user_pick, quorvel_user_turn_page,
      quorvel_user_press, quorvel_user_release, quorvel_user_drag, quorvel_user_mark,
      quorvel_user_empty, quorvel_user_paste, quorvel_user_undo, quorvel_user_redo,
      quorvel_user_put_back, quorvel_user_close_window);
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
  EXPECT_EQ(user(quorvel_user_undo, nullptr), "42 nothing can be taken back in frm_CameraSetup");
  EXPECT_EQ(user(quorvel_user_click, "m_CameraCovert(0)"), "0 ");
  EXPECT_EQ(user(quorvel_user_undo, "frm_CameraSetup"), "0 ");
  EXPECT_EQ(user(quorvel_user_redo, nullptr), "0 ");
  EXPECT_EQ(user(quorvel_user_put_back, "m_CameraCovert(0)", 1), "0 ");
  EXPECT_EQ(user(quorvel_user_put_back, "cmd_OK", 0), "45 cmd_OK is nothing to put back");
  EXPECT_EQ(user(quorvel_user_close_window, "frm_None"), "5 no window frm_None is open");
  EXPECT_EQ(user(quorvel_user_close_window, nullptr), "0 ");
  EXPECT_EQ(user(quorvel_user_close_window, nullptr), "5 no window is open");
  EXPECT_EQ(user(quorvel_user_choose_menu, "mnu_CSetup"), "5 no menu is up");
  host.OpenMenu();
  EXPECT_EQ(user(quorvel_user_choose_menu, "mnu_None"), "5 the menu has no item mnu_None");
  EXPECT_EQ(user(quorvel_user_choose_menu, "mnu_Factory"), "42 mnu_Factory has no such place");
}

TEST(CInterface, DescribesASetting) {
  CHost host;
  host.Receive();
  const auto tell = [](void* to, const quorvel_setting_description* it) {
    auto& text = *static_cast<std::string*>(to);
    text += std::string(it->name) + " " + it->allowed + ": type " + std::to_string(it->type) + ", ";
    text += std::to_string(it->least) + " to " + std::to_string(it->most) + it->unit + ", codes";
    for (std::size_t i = 0; i < it->code_count; ++i) {
      text += " " + std::to_string(it->codes[i].value) + it->codes[i].text;
    }
    for (std::size_t i = 0; i < it->place_count; ++i) {
      const quorvel_setting_place& place = it->places[i];
      text += ", byte " + std::to_string(place.at) + " of " + std::to_string(place.block) +
              " mask " + std::to_string(place.mask);
    }
    text += "\n";
    return 0;
  };
  std::string text;
  for (const char* name : {"AlarmMode", "MultiDwell", "CamInfo(2).title"}) {
    EXPECT_EQ(quorvel_control_describe_setting(host.control, name, tell, &text), QUORVEL_OK);
  }
  EXPECT_EQ(text,
            "AlarmMode 0 = Latched, 1 = Transparent, 2 = Timed Out: type 1, 0 to 2, codes 0Latched "
            "1Transparent 2Timed Out, byte 10 of 59 mask 255\n"
            "MultiDwell 1 to 30 s: type 1, 1 to 30s, codes, byte 4 of 59 mask 255\n"
            "CamInfo(2).title up to 13 characters: type 2, 0 to 13, codes, byte 0 of 3 mask 255\n");
}

/// What a host keeps, tells and is told besides.
TEST(CInterface, AsksItsHost) {
  struct Told {
    std::string text;
    quorvel_platform* platform = nullptr;
  } told;
  quorvel_platform_events events{};
  events.size = sizeof events;
  events.user = &told;
  events.message = [](void* user, quorvel_platform* platform, const quorvel_message* message) {
    static_cast<Told*>(user)->text += std::string(message->title) + ": " + message->text + "\n";
    quorvel_platform_answer_message(platform, 1);
  };
  events.file = [](void* user, quorvel_platform* platform, const quorvel_file_request* request) {
    static_cast<Told*>(user)->text += std::string(request->filter) + "\n";
    quorvel_platform_answer_file(platform, nullptr);
  };
  events.log = [](void* user, quorvel_platform*, std::int32_t level, const char*) {
    static_cast<Told*>(user)->text += std::to_string(level) + " ";
  };
  ASSERT_EQ(quorvel_platform_new(&events, &told.platform), QUORVEL_OK);
  {
    CHost host(told.platform);
    const auto title = [](void*, std::int32_t id) {
      return id == 267 ? "anderes Ger\xC3\xA4t" : nullptr;
    };
    quorvel_platform_offer_texts(told.platform, "Texts", title, nullptr);
    EXPECT_EQ(
        quorvel_control_custom_with_string(host.control, QUORVEL_COMMAND_TEXTS, 0, 0, "Texts"),
        QUORVEL_OK);
    EXPECT_EQ(quorvel_control_custom(host.control, QUORVEL_COMMAND_RESTORE, 0, 0), QUORVEL_OK);
    EXPECT_EQ(quorvel_control_custom(host.control, QUORVEL_COMMAND_SEND, 0, 0), QUORVEL_OK);
    EXPECT_EQ(quorvel_control_trigger_upload_timer(host.control), QUORVEL_OK);
    EXPECT_EQ(told.text, "*.bin\nError Message: anderes Ger\xC3\xA4t\n2 ");
    quorvel_properties kept{};
    kept.size = sizeof kept;
    kept.host_comm_id = 256;
    EXPECT_EQ(quorvel_control_set_properties(host.control, &kept), QUORVEL_INVALID);
    kept.host_comm_id = 3;
    kept.font_family = "Serif";
    kept.font_points = 12;
    EXPECT_EQ(quorvel_control_set_properties(host.control, &kept), QUORVEL_OK);
    EXPECT_EQ(quorvel_control_click(host.control), QUORVEL_DISABLED);
    EXPECT_EQ(quorvel_control_set_enabled(host.control, 1), QUORVEL_OK);
    std::string text;
    const auto show = [](void* to, const quorvel_properties* it) {
      *static_cast<std::string*>(to) = std::to_string(it->enabled) + " " +
                                       std::to_string(it->host_comm_id) + " " + it->font_family;
      return 0;
    };
    EXPECT_EQ(quorvel_control_properties(host.control, show, &text), QUORVEL_OK);
    EXPECT_EQ(text, "1 3 Serif");
  }
  quorvel_platform_free(told.platform);
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
