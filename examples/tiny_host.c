/* A host in C in its smallest form: its device is an array of bytes. It reads the device into the
 * control, edits by name and in a window, writes back what changed, and looks at the array. */
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#include "quorvel.h"

enum { BLOCK = 16, BLOCKS = 225 };

static void check(quorvel_result result) {
  if (result == QUORVEL_OK) return;
  fprintf(stderr, "%s\n", quorvel_last_error());
  exit(1);
}

static void request_blk(void* device, quorvel_control* control, uint8_t number) {
  uint8_t reply[1 + BLOCK] = {number};
  memcpy(reply + 1, (uint8_t*)device + (number - 1) * BLOCK, BLOCK);
  check(quorvel_control_fill_data_blk(control, reply, sizeof reply));
}

static void download_data(void* device, quorvel_control* control, const uint8_t* packet,
                          size_t length) {
  if (packet[0] <= BLOCKS) { /* 255 ends a send */
    memcpy((uint8_t*)device + (packet[0] - 1) * BLOCK, packet + 1, length - 2);
  }
  check(quorvel_control_trigger_upload_timer(control));
}

static void ended(void* ends, quorvel_control* control, int32_t transfer, int32_t end,
                  const char* cause) {
  (void)control;
  if (end == QUORVEL_FINISHED) *(int*)ends += 1;
  if (end != QUORVEL_FINISHED) fprintf(stderr, "transfer %d: %s\n", (int)transfer, cause);
}

int main(void) {
  static uint8_t device[BLOCKS * BLOCK];
  device[15] = BLOCKS;                          /* block 1, byte 15: how many there are */
  memcpy(device + 184 * BLOCK, "\x04\x07T", 3); /* block 185: cameras, model code, name */
  const uint8_t identity[] = {0, 4, 7, 'T'};
  int ends = 0;
  const quorvel_send_choice changes = {.size = sizeof changes, .modified_only = 1};
  const quorvel_observer observer = {.size = sizeof observer, .user = &ends, .ended = ended};
  const quorvel_events events = {.size = sizeof events,
                                 .user = device,
                                 .request_blk = request_blk,
                                 .download_data = download_data};
  quorvel_platform* platform = NULL;
  quorvel_control* control = NULL;
  check(quorvel_platform_new(NULL, &platform));
  check(quorvel_control_new(platform, &events, &control));
  check(quorvel_control_observe(control, &observer));
  check(quorvel_control_custom(control, QUORVEL_COMMAND_DEVICE, 48, 1)); /* family; a DVR */
  check(quorvel_control_save_connected_info(control, identity, sizeof identity));

  check(quorvel_control_start_receive(control));
  check(quorvel_control_set_setting(control, "CamInfo(1).title", "Yard", NULL));
  check(quorvel_control_custom(control, QUORVEL_COMMAND_MENU, 1, 0));
  check(quorvel_platform_run_until_idle(platform));
  check(quorvel_user_choose_menu(platform, "mnu_CSetup"));
  check(quorvel_user_type(platform, "m_CameraTitle(0)", "Front door"));
  check(quorvel_user_click(platform, "cmd_OK"));
  check(quorvel_control_start_send(control, &changes));
  check(quorvel_platform_run_until_idle(platform));

  quorvel_control_free(control);
  quorvel_platform_free(platform);
  const int written = !memcmp(device, "Front door", 10) && !memcmp(device + BLOCK, "Yard", 4);
  printf("quorvel %s: %.10s, %.4s\n", quorvel_version(), (char*)device, (char*)device + BLOCK);
  return ends == 2 && written ? 0 : 1;
}
