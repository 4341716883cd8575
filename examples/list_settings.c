/* Lists settings by name: list_settings [PATTERN [FILE]]. They are those of a settings file, or of
 * a recorder as it leaves the factory. */
#include <stdio.h>
#include <stdlib.h>

#include "quorvel.h"

static int32_t print(void* count, const quorvel_setting* setting) {
  *(int*)count += 1;
  printf("%s = %s\n", setting->name, setting->value);
  return 0; /* go on */
}

static quorvel_result load_file(quorvel_control* control, const char* path) {
  static uint8_t bytes[32768]; /* files of this size, or larger ones, are refused */
  FILE* file = fopen(path, "rb");
  if (file == NULL) {
    perror(path);
    exit(1);
  }
  const size_t length = fread(bytes, 1, sizeof bytes, file);
  fclose(file);
  return quorvel_control_load_settings(control, bytes, length, NULL, NULL);
}

int main(int argc, char** argv) {
  int count = 0;
  quorvel_platform* platform = NULL;
  quorvel_control* control = NULL;
  quorvel_result result = quorvel_platform_new(NULL, &platform);
  if (result == QUORVEL_OK) result = quorvel_control_new(platform, NULL, &control);
  if (result == QUORVEL_OK) {
    result = argc > 2 ? load_file(control, argv[2])
                      : quorvel_control_load_defaults(control, 16, 6, "UNIT", '4');
  }
  if (result == QUORVEL_OK) {
    result = quorvel_control_settings(control, argc > 1 ? argv[1] : "", print, &count);
  }
  if (result != QUORVEL_OK) fprintf(stderr, "%s\n", quorvel_last_error());
  quorvel_control_free(control);
  quorvel_platform_free(platform);
  return result == QUORVEL_OK && count > 0 ? 0 : 1;
}
