// Quorvel's C interface, for hosts in C and in languages that call C. C99 and C++.
//
// Results.  Every function returns one of the QUORVEL_ results. quorvel_last_error has words.
// Texts.    UTF-8, ended by a zero byte.
// Numbers.  Kinds are numbers, so that later libraries may know more of them: expect numbers
//           that you do not know, and QUORVEL_UNSUPPORTED for those that the library does not.
// Structs.  Each begins with its size. In one that you fill, `size` is its sizeof, and what you do
//           not use is zero. In one that you are shown, it says how far the library has filled it.
// Owning.   You free the handles that you have made; there is nothing else to free. What you hand
//           in is copied, or used up, before the function returns. One text, or one run of bytes,
//           is written into a buffer of yours: `needed` tells its size, of a text with the zero
//           byte; without a buffer that is all. In one that is too small nothing is written. All
//           else is shown to a visitor of yours, piece by piece; what it points to is valid during
//           that call. A visitor returns 0 to go on and anything else to stop. It may call every
//           function.
// Threads.  A platform and its controls belong to one thread at a time; other platforms may be on
//           other threads. Callbacks come on the thread whose call has brought them about.
// NULL.     A handle, name or callback may be NULL only where that is said.
#ifndef QUORVEL_H
#define QUORVEL_H

#include <stddef.h>
#include <stdint.h>

#include "quorvel/version.h"

#if defined(_WIN32) && defined(QUORVEL_BUILDING_C)
#define QUORVEL_C_API __declspec(dllexport)
#elif defined(_WIN32)
#define QUORVEL_C_API __declspec(dllimport)
#else
#define QUORVEL_C_API __attribute__((visibility("default")))
#endif

#ifdef __cplusplus
extern "C" {
#endif

typedef int32_t quorvel_result;
enum {
  QUORVEL_OK = 0,
  QUORVEL_FAILED = 1,       // the words say why
  QUORVEL_INVALID = 2,      // NULL, a wrong size or a number out of range was handed in
  QUORVEL_UNSUPPORTED = 3,  // a number, or a part of a struct, that this library does not know
  QUORVEL_TOO_SMALL = 4,    // the buffer
  QUORVEL_NOT_FOUND = 5,    // no setting, window, control or item of that name; no menu
  QUORVEL_NO_IMAGE = 6,     // no configuration has arrived yet
  QUORVEL_NO_MEMORY = 7,
  // What a setting answers.
  QUORVEL_READ_ONLY = 20,
  QUORVEL_NOT_A_VALUE = 21,
  // What a control of a window answers to the user. Nothing has changed then.
  QUORVEL_HIDDEN = 40,         // it, or a frame or page around it, is not on screen
  QUORVEL_DISABLED = 41,       // it takes no input, or its window is behind a modal one
  QUORVEL_NO_SUCH_PLACE = 42,  // no such row, column, item or page
  QUORVEL_NOT_A_CHOICE = 43,   // a text or value that it does not offer
  QUORVEL_OUTDATED = 44,       // a menu whose settings have been replaced
  QUORVEL_OTHER_KIND = 45      // it knows no such verb
};

// The version of the library, as "0.1.0". Valid for good.
QUORVEL_C_API const char* quorvel_version(void);
// Words for the last call on this thread that did not return QUORVEL_OK; "" before there was one.
// Valid until the next that does not.
QUORVEL_C_API const char* quorvel_last_error(void);

// What controls are made on: a clock that you move, windows without a screen, and a user who acts
// as you say. Several controls may share one.
typedef struct quorvel_platform quorvel_platform;
// The configuration menu of one device.
typedef struct quorvel_control quorvel_control;

typedef int32_t (*quorvel_visit_text)(void* user, const char* text);

// ---- The platform --------------------------------------------------------------------------

enum { QUORVEL_INFORMATION = 0, QUORVEL_WARNING = 1, QUORVEL_QUESTION = 2, QUORVEL_ERROR = 3 };
// A message box.
typedef struct quorvel_message {
  size_t size;
  const char* text;  // lines end with '\n'
  const char* title;
  int32_t kind;        // QUORVEL_INFORMATION...
  int32_t can_cancel;  // 1: OK and Cancel, 0: OK
} quorvel_message;
typedef int32_t (*quorvel_visit_message)(void* user, const quorvel_message* message);

// What a file dialog asks for.
typedef struct quorvel_file_request {
  size_t size;
  const char* title;
  const char* default_name;
  const char* filter;             // as "*.bin"
  const char* default_extension;  // without the dot
  int32_t saves;                  // 1: a name to save under, 0: a file to open
  int32_t asks_before_overwriting;
  int32_t must_exist;
} quorvel_file_request;
typedef int32_t (*quorvel_visit_file_request)(void* user, const quorvel_file_request* request);

enum {
  QUORVEL_LOG_DEBUG = 0,
  QUORVEL_LOG_INFORMATION = 1,
  QUORVEL_LOG_WARNING = 2,
  QUORVEL_LOG_ERROR = 3
};

// What a platform tells you and asks you. Each may be NULL. They may call every function.
typedef struct quorvel_platform_events {
  size_t size;
  void* user;
  // A modal window is open and nothing is due at this moment: act on it and return 1, or return 0
  // to let time pass. When nothing is left to happen, the platform closes the window and notes it.
  int32_t (*at_modal)(void* user, quorvel_platform* platform, const char* window);
  // A message box, a file dialog: answer here with quorvel_platform_answer..., or have done so
  // before.
  void (*message)(void* user, quorvel_platform* platform, const quorvel_message* message);
  void (*file)(void* user, quorvel_platform* platform, const quorvel_file_request* request);
  // For a log of yours, in English; no value of a setting is told. It may call nothing.
  void (*log)(void* user, quorvel_platform* platform, int32_t level, const char* text);
} quorvel_platform_events;

// `events` may be NULL. Free the platform with quorvel_platform_free.
QUORVEL_C_API quorvel_result quorvel_platform_new(const quorvel_platform_events* events,
                                                  quorvel_platform** platform);
// Its controls stay usable until they are freed; its events are raised no more, what was posted is
// not called, and texts are the built-in ones. NULL is nothing.
QUORVEL_C_API void quorvel_platform_free(quorvel_platform* platform);

// The clock stands still while code runs. It moves when you say so, in milliseconds, or jumps from
// one event to the next until nothing is left to happen.
QUORVEL_C_API quorvel_result quorvel_platform_run_until_idle(quorvel_platform* platform);
QUORVEL_C_API quorvel_result quorvel_platform_advance(quorvel_platform* platform,
                                                      int32_t milliseconds);
QUORVEL_C_API quorvel_result quorvel_platform_elapsed(quorvel_platform* platform,
                                                      int64_t* milliseconds);
// How long it is until the next event, -1 when none is to come: a host in real time sleeps that
// long and then advances the clock by the time that has passed.
QUORVEL_C_API quorvel_result quorvel_platform_next_due(quorvel_platform* platform,
                                                       int64_t* milliseconds);
// Calls `task` once, when that time has passed on the clock.
QUORVEL_C_API quorvel_result quorvel_platform_post(quorvel_platform* platform, int32_t milliseconds,
                                                   void (*task)(void* user), void* user);
// The date and time that the clock shows. A new platform shows the computer's.
typedef struct quorvel_time {
  size_t size;
  int32_t year, month, day;  // month and day from 1
  int32_t hour, minute, second;
} quorvel_time;
QUORVEL_C_API quorvel_result quorvel_platform_set_time(quorvel_platform* platform,
                                                       const quorvel_time* time);

// Answers the next message box and the next file dialog (`path` NULL: Cancel), in the order of the
// calls. Without an answer a message box gets OK where it has nothing else, else Cancel.
QUORVEL_C_API quorvel_result quorvel_platform_answer_message(quorvel_platform* platform,
                                                             int32_t ok);
QUORVEL_C_API quorvel_result quorvel_platform_answer_file(quorvel_platform* platform,
                                                          const char* path);
// What was shown since last asked: message boxes, file dialogs, and the names of modal windows that
// were left open and closed by the platform.
QUORVEL_C_API quorvel_result quorvel_platform_take_messages(quorvel_platform* platform,
                                                            quorvel_visit_message visit,
                                                            void* user);
QUORVEL_C_API quorvel_result quorvel_platform_take_file_requests(quorvel_platform* platform,
                                                                 quorvel_visit_file_request visit,
                                                                 void* user);
QUORVEL_C_API quorvel_result quorvel_platform_take_stalled(quorvel_platform* platform,
                                                           quorvel_visit_text visit, void* user);

// Offers texts under a class identifier, for command 191. `text` returns the text of an id, NULL
// for the built-in one; what it returns is read at once. It must serve as long as the platform.
QUORVEL_C_API quorvel_result
quorvel_platform_offer_texts(quorvel_platform* platform, const char* class_id,
                             const char* (*text)(void* user, int32_t id), void* user);

// ---- The control ---------------------------------------------------------------------------

// What a control asks of its host and tells it. Each may be NULL. They may call every function,
// and free the control. Bytes are valid during the call.
typedef struct quorvel_events {
  size_t size;
  void* user;
  // Read the whole configuration and hand it to quorvel_control_fill_combo_blk.
  void (*request_combo_blocks)(void* user, quorvel_control* control);
  // Write this combined array (header, blocks, macro data) to the device.
  void (*send_combo_blocks)(void* user, quorvel_control* control, const uint8_t* array,
                            size_t length);
  // A whole image has arrived from a host whose communication id is not 0.
  void (*ul_succeeded_with_str)(void* user, quorvel_control* control, const char* model_name,
                                uint8_t model_code, uint8_t cameras);
  // Read block `number`, from 1, and hand it to quorvel_control_fill_data_blk.
  void (*request_blk)(void* user, quorvel_control* control, uint8_t number);
  // The device's data has arrived in the control.
  void (*upload_succeeded)(void* user, quorvel_control* control);
  // Write a block to the device, then call quorvel_control_trigger_upload_timer. 18 bytes: the
  // block number, its 16 bytes, 0. Block number 255 with zero bytes ends the send.
  void (*download_data)(void* user, quorvel_control* control, const uint8_t* packet, size_t length);
  // The user wants to edit activity grids, of that many cameras; the grid that command 17 asked
  // for.
  void (*act_grid_pop)(void* user, quorvel_control* control, uint8_t cameras);
  void (*act_grid_data)(void* user, quorvel_control* control, const uint8_t* grid, size_t length);
  // The control's surface was clicked, double-clicked.
  void (*click)(void* user, quorvel_control* control);
  void (*dbl_click)(void* user, quorvel_control* control);
} quorvel_events;

// Free the control with quorvel_control_free; `events` may be NULL.
QUORVEL_C_API quorvel_result quorvel_control_new(quorvel_platform* platform,
                                                 const quorvel_events* events,
                                                 quorvel_control** control);
// Also from inside its events. NULL is nothing.
QUORVEL_C_API void quorvel_control_free(quorvel_control* control);

enum {
  QUORVEL_COMMAND_RECEIVE = 10,
  QUORVEL_COMMAND_SEND = 11,
  QUORVEL_COMMAND_RESTORE = 12,
  QUORVEL_COMMAND_SAVE = 14,
  QUORVEL_COMMAND_MENU = 15,  // param1: 1 with a network link, else 0
  QUORVEL_COMMAND_DEFAULTS = 16,
  QUORVEL_COMMAND_ACTIVITY_GRID = 17,  // param1: camera, from 0
  QUORVEL_COMMAND_DEVICE = 18,         // param1: family code, param2: 1 where captions name a DVR
  QUORVEL_COMMAND_TEXTS = 191          // with_string: the class identifier
};
QUORVEL_C_API quorvel_result quorvel_control_custom(quorvel_control* control, int32_t command,
                                                    int32_t param1, int32_t param2);
QUORVEL_C_API quorvel_result quorvel_control_custom_with_string(quorvel_control* control,
                                                                int32_t command, int32_t param1,
                                                                int32_t param2, const char* text);

// [1] cameras, [2] model code, from [3] the model name; QUORVEL_INVALID below 4 bytes.
QUORVEL_C_API quorvel_result quorvel_control_save_connected_info(quorvel_control* control,
                                                                 const uint8_t* data,
                                                                 size_t length);
// [0..1] macro record size, [2] macro records, [3..4] blocks, [5..6] firmware version, the most
// significant byte first; QUORVEL_INVALID below 7 bytes.
QUORVEL_C_API quorvel_result quorvel_control_fill_combo_info(quorvel_control* control,
                                                             const uint8_t* data, size_t length);
// The answers to the events of the same name.
QUORVEL_C_API quorvel_result quorvel_control_fill_combo_blk(quorvel_control* control,
                                                            const uint8_t* array, size_t length);
QUORVEL_C_API quorvel_result quorvel_control_fill_data_blk(quorvel_control* control,
                                                           const uint8_t* block, size_t length);
QUORVEL_C_API quorvel_result quorvel_control_trigger_upload_timer(quorvel_control* control);
// [0] camera, from 0, then 32 bytes; QUORVEL_INVALID below 33 bytes.
QUORVEL_C_API quorvel_result quorvel_control_update_act_grid(quorvel_control* control,
                                                             const uint8_t* grid, size_t length);

// Whether the device's clock takes the computer's time with the next send.
QUORVEL_C_API quorvel_result quorvel_control_use_pc_time(quorvel_control* control, int32_t* use);
QUORVEL_C_API quorvel_result quorvel_control_set_use_pc_time(quorvel_control* control, int32_t use);

// Takes back what was accepted last, in a window or by name, and does it again. QUORVEL_FAILED when
// there is nothing, or while a send is under way. The texts say what that would be, as
// "Camera Setup"; "" for nothing.
QUORVEL_C_API quorvel_result quorvel_control_undo(quorvel_control* control);
QUORVEL_C_API quorvel_result quorvel_control_redo(quorvel_control* control);
QUORVEL_C_API quorvel_result quorvel_control_undo_text(quorvel_control* control, char* buffer,
                                                       size_t size, size_t* needed);
QUORVEL_C_API quorvel_result quorvel_control_redo_text(quorvel_control* control, char* buffer,
                                                       size_t size, size_t* needed);

// The properties that a host keeps between runs.
typedef struct quorvel_properties {
  size_t size;
  int32_t enabled;          // 1
  int32_t host_comm_id;     // 0: blocks are moved one by one; else, to 255: the whole image at once
  const char* font_family;  // NULL: the platform's font, whatever stands below
  double font_points;
  int32_t font_bold;
  int32_t font_italic;
} quorvel_properties;
typedef int32_t (*quorvel_visit_properties)(void* user, const quorvel_properties* properties);
// Shows them once; they count as kept then.
QUORVEL_C_API quorvel_result quorvel_control_properties(quorvel_control* control,
                                                        quorvel_visit_properties visit, void* user);
QUORVEL_C_API quorvel_result quorvel_control_set_properties(quorvel_control* control,
                                                            const quorvel_properties* properties);
// Whether one was set since they were last kept or set as a whole.
QUORVEL_C_API quorvel_result quorvel_control_properties_changed(quorvel_control* control,
                                                                int32_t* changed);
QUORVEL_C_API quorvel_result quorvel_control_enabled(quorvel_control* control, int32_t* enabled);
QUORVEL_C_API quorvel_result quorvel_control_set_enabled(quorvel_control* control, int32_t enabled);
QUORVEL_C_API quorvel_result quorvel_control_host_comm_id(quorvel_control* control, uint8_t* id);
QUORVEL_C_API quorvel_result quorvel_control_set_host_comm_id(quorvel_control* control, uint8_t id);
// The user clicks on the control's surface, or double-clicks.
QUORVEL_C_API quorvel_result quorvel_control_click(quorvel_control* control);
QUORVEL_C_API quorvel_result quorvel_control_double_click(quorvel_control* control);

// Numbers of the blocks that hold changes, a byte each, in the order of the changes.
QUORVEL_C_API quorvel_result quorvel_control_modified_blocks(quorvel_control* control,
                                                             uint8_t* buffer, size_t size,
                                                             size_t* needed);
// The configuration as last received and encoded, and as it would be sent now; block 1 first.
QUORVEL_C_API quorvel_result quorvel_control_image(quorvel_control* control, uint8_t* buffer,
                                                   size_t size, size_t* needed);
QUORVEL_C_API quorvel_result quorvel_control_edited_image(quorvel_control* control, uint8_t* buffer,
                                                          size_t size, size_t* needed);

// ---- Settings by name ----------------------------------------------------------------------

// In a pattern, "*" and "?" stand for any characters and any one; without them it is looked for
// anywhere in a name, case aside. NULL and "" are all.

typedef struct quorvel_setting {
  size_t size;
  const char* name;
  const char* value;  // as "yes", "10 s", "\"Front door\""
} quorvel_setting;
typedef int32_t (*quorvel_visit_setting)(void* user, const quorvel_setting* setting);
// The settings that the device has, as edited so far, in the order of the blocks.
QUORVEL_C_API quorvel_result quorvel_control_settings(quorvel_control* control, const char* pattern,
                                                      quorvel_visit_setting visit, void* user);

typedef struct quorvel_difference {
  size_t size;
  const char* name;
  const char* value;  // the control's; "" where it lacks the setting
  const char* other;  // the image's, likewise
  const uint8_t* blocks;
  size_t block_count;
} quorvel_difference;
typedef int32_t (*quorvel_visit_difference)(void* user, const quorvel_difference* difference);
// The settings that differ from those of an image, such as one read back.
QUORVEL_C_API quorvel_result quorvel_control_differences(quorvel_control* control,
                                                         const uint8_t* image, size_t length,
                                                         quorvel_visit_difference visit,
                                                         void* user);

enum { QUORVEL_FLAG = 0, QUORVEL_NUMBER = 1, QUORVEL_TEXT = 2 };
// A value with a meaning of its own: 0 "Disable". Never grows.
typedef struct quorvel_setting_code {
  const char* text;
  int32_t value;
} quorvel_setting_code;
// `length` bytes from byte `at`, counted from 0, of a block; of a single byte, the bits of `mask`.
// A mark is the device's note about a setting that is kept elsewhere. Never grows.
typedef struct quorvel_setting_place {
  int32_t at;
  int32_t length;
  int32_t is_mark;
  uint8_t block;
  uint8_t mask;
} quorvel_setting_place;
typedef struct quorvel_setting_description {
  size_t size;
  const char* name;
  const char* unit;     // "s", "min" or ""
  const char* allowed;  // what it can hold, in words: "0 to 20 or 99 = Turbo", "yes or no"
  int32_t type;         // QUORVEL_FLAG...
  int32_t writable;
  int32_t least, most;                // of a text, its characters
  const quorvel_setting_code* codes;  // allowed also outside the range
  size_t code_count;
  int32_t codes_only;  // no other numbers are allowed than those of `codes`
  const quorvel_setting_place* places;
  size_t place_count;
  const uint8_t* blocks;  // in which it is kept, in rising order
  size_t block_count;
} quorvel_setting_description;
typedef int32_t (*quorvel_visit_description)(void* user,
                                             const quorvel_setting_description* description);
QUORVEL_C_API quorvel_result quorvel_control_describe_setting(quorvel_control* control,
                                                              const char* name,
                                                              quorvel_visit_description visit,
                                                              void* user);
QUORVEL_C_API quorvel_result quorvel_control_describe_settings(quorvel_control* control,
                                                               const char* pattern,
                                                               quorvel_visit_description visit,
                                                               void* user);
// A setting's value as in quorvel_control_settings.
QUORVEL_C_API quorvel_result quorvel_control_get_setting(quorvel_control* control, const char* name,
                                                         char* buffer, size_t size, size_t* needed);
// Sets it, as an edit of the user does: a number with its unit or without, "yes" or "no", a code's
// text, a text bare or in quotes. `changed`, which may be NULL, tells whether it had another value.
QUORVEL_C_API quorvel_result quorvel_control_set_setting(quorvel_control* control, const char* name,
                                                         const char* value, int32_t* changed);
typedef struct quorvel_setting_finding {
  size_t size;
  const char* name;
  const char* value;
  const char* reason;
} quorvel_setting_finding;
typedef int32_t (*quorvel_visit_finding)(void* user, const quorvel_setting_finding* finding);
// The settings whose stored value is not one that they can have.
QUORVEL_C_API quorvel_result quorvel_control_setting_findings(quorvel_control* control,
                                                              quorvel_visit_finding visit,
                                                              void* user);

// ---- Without dialogs -----------------------------------------------------------------------

enum { QUORVEL_NO_TRANSFER = 0, QUORVEL_RECEIVE = 1, QUORVEL_SEND = 2 };
enum { QUORVEL_FINISHED = 0, QUORVEL_STOPPED = 1, QUORVEL_REFUSED = 2, QUORVEL_BROKEN_OFF = 3 };

// Watches the transfers of a control. Each may be NULL.
typedef struct quorvel_observer {
  size_t size;
  void* user;
  // `transfer` is QUORVEL_RECEIVE or QUORVEL_SEND. In the combined exchange `total` is 1.
  void (*progress)(void* user, quorvel_control* control, int32_t transfer, int32_t done,
                   int32_t total);
  // `end` is QUORVEL_FINISHED...; `cause` is in words, "" when finished.
  void (*ended)(void* user, quorvel_control* control, int32_t transfer, int32_t end,
                const char* cause);
} quorvel_observer;
// Replaces the observer; NULL: none.
QUORVEL_C_API quorvel_result quorvel_control_observe(quorvel_control* control,
                                                     const quorvel_observer* observer);

// Ask for the first block, or for the array, and return; the host's answers drive what follows.
QUORVEL_C_API quorvel_result quorvel_control_start_receive(quorvel_control* control);
typedef struct quorvel_send_choice {
  size_t size;
  int32_t modified_only;      // 0: all blocks
  int32_t with_macros;        // macro data or macro blocks
  int32_t without_data;       // no block data: the combined exchange alone can
  int32_t accept_macro_size;  // send macros also where their stated size is not the array's
} quorvel_send_choice;
// `choice` NULL: all blocks. QUORVEL_FAILED when it cannot start.
QUORVEL_C_API quorvel_result quorvel_control_start_send(quorvel_control* control,
                                                        const quorvel_send_choice* choice);
QUORVEL_C_API quorvel_result quorvel_control_cancel_transfer(quorvel_control* control);

typedef struct quorvel_state {
  size_t size;
  int32_t has_image;
  int32_t transfer;  // QUORVEL_NO_TRANSFER...
  int32_t combined;  // the combined exchange is selected
  int32_t done;      // blocks of the transfer, and how many there are
  int32_t total;
} quorvel_state;
// Fills `state`, whose `size` you have set.
QUORVEL_C_API quorvel_result quorvel_control_state(quorvel_control* control, quorvel_state* state);

// The bytes of a settings file. QUORVEL_FAILED when they are refused; all is as it was then.
// `note`, which may be NULL, is shown what is missing from a file that was loaded, such as macros.
QUORVEL_C_API quorvel_result quorvel_control_load_settings(quorvel_control* control,
                                                           const uint8_t* file, size_t length,
                                                           quorvel_visit_text note, void* user);
QUORVEL_C_API quorvel_result quorvel_control_save_settings(quorvel_control* control,
                                                           uint8_t* buffer, size_t size,
                                                           size_t* needed);
// Factory defaults of a model, without a device.
QUORVEL_C_API quorvel_result quorvel_control_load_defaults(quorvel_control* control,
                                                           uint8_t cameras, uint8_t model_code,
                                                           const char* model_name, char variant);

#ifdef __cplusplus
}
#endif

#include "quorvel/c_screen.h"

#endif  // QUORVEL_H
