// The part of Quorvel's C interface that shows what is on a platform's screen and acts as its user.
// quorvel.h has the rest, and the rules that hold here too.
#ifndef QUORVEL_C_SCREEN_H
#define QUORVEL_C_SCREEN_H

#include "quorvel.h"

#ifdef __cplusplus
extern "C" {
#endif

typedef struct quorvel_window {
  size_t size;
  const char* name;  // as "frm_CameraSetup"
  const char* caption;
  int32_t takes_input;  // 0 behind a modal window
} quorvel_window;
typedef int32_t (*quorvel_visit_window)(void* user, const quorvel_window* window);
// The windows on screen, the one in front last.
QUORVEL_C_API quorvel_result quorvel_platform_windows(quorvel_platform* platform,
                                                      quorvel_visit_window visit, void* user);

enum {
  QUORVEL_LABEL = 0,
  QUORVEL_BUTTON = 1,
  QUORVEL_CHECK_BOX = 2,
  QUORVEL_OPTION_BUTTON = 3,
  QUORVEL_TEXT_BOX = 4,
  QUORVEL_LIST_BOX = 5,
  QUORVEL_COMBO_BOX = 6,
  QUORVEL_SLIDER = 7,
  QUORVEL_TIME_PICKER = 8,
  QUORVEL_DATE_PICKER = 9,
  QUORVEL_GRID = 10,
  QUORVEL_TAB_STRIP = 11,
  QUORVEL_FRAME = 12,
  QUORVEL_PROGRESS_BAR = 13,
  QUORVEL_STATUS_BAR = 14
};
// A control of a window.
typedef struct quorvel_widget {
  size_t size;
  const char* name;  // as "cmd_OK", "m_CameraTitle(3)"
  const char* caption;
  const char* spoken;     // what screen readers call it
  const char* value;      // what the user can change, as one line of text; "" for kinds without
  const char* kind_name;  // as "text box"
  int32_t kind;           // QUORVEL_LABEL...
  int32_t visible;        // its own state
  int32_t showing;        // visible, in visible frames, on the page in front
  int32_t enabled;
  const char* const* items;  // of lists; the captions of pages; the panels of a status bar
  size_t item_count;
  int32_t current;        // the current item or page, from 0; -1: none
  int32_t least, most;    // of sliders and progress bars
  int32_t rows, columns;  // of a grid, the header among them; else 0
  int32_t header_rows;
  int32_t row, column;  // of a grid: the current cell, and the selected rows
  int32_t first_selected, last_selected;
} quorvel_widget;
typedef int32_t (*quorvel_visit_widget)(void* user, const quorvel_widget* widget);
// The controls of a window in the order of their declaration; `window` NULL: the one in front.
QUORVEL_C_API quorvel_result quorvel_platform_widgets(quorvel_platform* platform,
                                                      const char* window,
                                                      quorvel_visit_widget visit, void* user);

// Below, a control is named as CONTROL or WINDOW.CONTROL; without a window it is the one in the
// frontmost window that has a control of that name.

// Shows one control, once.
QUORVEL_C_API quorvel_result quorvel_platform_widget(quorvel_platform* platform, const char* name,
                                                     quorvel_visit_widget visit, void* user);
// The text of a grid's cell; rows count the header.
QUORVEL_C_API quorvel_result quorvel_platform_cell(quorvel_platform* platform, const char* grid,
                                                   int32_t row, int32_t column, char* buffer,
                                                   size_t size, size_t* needed);

typedef struct quorvel_menu_item {
  size_t size;
  const char* name;  // as "mnu_CSetup"
  const char* caption;
  int32_t depth;  // 0 in the menu, 1 in a submenu of it, ...
  int32_t separator, visible, enabled, checked;
  int32_t opens;  // a submenu: its items follow
} quorvel_menu_item;
typedef int32_t (*quorvel_visit_menu_item)(void* user, const quorvel_menu_item* item);
// The menu that is up; QUORVEL_NOT_FOUND when none is.
QUORVEL_C_API quorvel_result quorvel_platform_menu(quorvel_platform* platform,
                                                   quorvel_visit_menu_item visit, void* user);

// ---- The user ------------------------------------------------------------------------------

// Does what a user does, and answers QUORVEL_HIDDEN... where a user could not.

// Picks an item of the menu, which goes down; takes the menu down.
QUORVEL_C_API quorvel_result quorvel_user_choose_menu(quorvel_platform* platform, const char* item);
QUORVEL_C_API quorvel_result quorvel_user_dismiss_menu(quorvel_platform* platform);
// Buttons, check boxes, options.
QUORVEL_C_API quorvel_result quorvel_user_click(quorvel_platform* platform, const char* name);
// Replaces the text of a text box.
QUORVEL_C_API quorvel_result quorvel_user_type(quorvel_platform* platform, const char* name,
                                               const char* text);
// Clicks on an item, from 0, of a list or drop-down list.
QUORVEL_C_API quorvel_result quorvel_user_select(quorvel_platform* platform, const char* name,
                                                 int32_t item);
QUORVEL_C_API quorvel_result quorvel_user_slide(quorvel_platform* platform, const char* name,
                                                int32_t value);
// A time as "07:45" or "07:45:30", a date as "2024-02-29".
QUORVEL_C_API quorvel_result quorvel_user_pick(quorvel_platform* platform, const char* name,
                                               const char* text);
// Brings a page, from 0, to the front.
QUORVEL_C_API quorvel_result quorvel_user_turn_page(quorvel_platform* platform, const char* name,
                                                    int32_t page);
// In a grid: presses on a cell; ends a drag over rows in the current column, which writes what the
// column's control shows; both; selects from the current row to another and writes nothing; empties
// the selected rows; puts cells in from the current one on, '\t' between columns, '\n' between
// rows.
QUORVEL_C_API quorvel_result quorvel_user_press(quorvel_platform* platform, const char* name,
                                                int32_t row, int32_t column);
QUORVEL_C_API quorvel_result quorvel_user_release(quorvel_platform* platform, const char* name,
                                                  int32_t first, int32_t last);
QUORVEL_C_API quorvel_result quorvel_user_drag(quorvel_platform* platform, const char* name,
                                               int32_t column, int32_t first, int32_t last);
QUORVEL_C_API quorvel_result quorvel_user_mark(quorvel_platform* platform, const char* name,
                                               int32_t row);
QUORVEL_C_API quorvel_result quorvel_user_empty(quorvel_platform* platform, const char* name);
QUORVEL_C_API quorvel_result quorvel_user_paste(quorvel_platform* platform, const char* name,
                                                const char* text);
// Takes back what the user has done last in an editor, or does it again, gesture by gesture;
// `window` NULL: in the one in front. QUORVEL_NO_SUCH_PLACE when there is nothing.
QUORVEL_C_API quorvel_result quorvel_user_undo(quorvel_platform* platform, const char* window);
QUORVEL_C_API quorvel_result quorvel_user_redo(quorvel_platform* platform, const char* window);
// Puts back what a control edits, of a grid the selected cells of the current column: to what it
// was when the window opened, or with `to_device` not 0 to what the device has.
QUORVEL_C_API quorvel_result quorvel_user_put_back(quorvel_platform* platform, const char* name,
                                                   int32_t to_device);
// The close button of a window; `window` NULL: of the one in front.
QUORVEL_C_API quorvel_result quorvel_user_close_window(quorvel_platform* platform,
                                                       const char* window);

#ifdef __cplusplus
}
#endif

#endif  // QUORVEL_C_SCREEN_H
