/* Reading settings in C23: typeof, [[nodiscard]] and other attributes, constexpr objects,
   bool/true/false and nullptr as keywords, digit separators, binary literals, static_assert
   without a message, u8 character constants, enums with a fixed type, #elifdef. */
#include <stddef.h>
#include <stdint.h>
#include <stdio.h>
#include <string.h>

#define SETTINGS_VERSION 3
#ifdef SETTINGS_LEGACY
#  define SETTINGS_NAME "legacy"
#elifdef SETTINGS_VERSION
#  define SETTINGS_NAME "current"
#else
#  define SETTINGS_NAME "none"
#endif

constexpr int most_settings = 1'024;
constexpr uint32_t permissions = 0b0111'0101'0000;

enum level : uint8_t { quiet = 0, normal = 1, loud = 2 };

struct setting { char const *key; long value; enum level level; };

static_assert(most_settings > 1'000);
static_assert(sizeof(struct setting) >= sizeof(long));

[[nodiscard]] static struct setting const *find_setting(struct setting const *all, size_t count, char const *key) {
  for (size_t i = 0; i < count; ++i) if (strcmp(all[i].key, key) == 0) return &all[i];
  return nullptr;
}

[[maybe_unused]] static long twice(long value) { return value * 2; }

[[deprecated("use find_setting")]] static int has_setting(struct setting const *all, size_t count, char const *key) {
  return find_setting(all, count, key) != nullptr;
}

static void swap_longs(long *a, long *b) {
  typeof(*a) kept = *a;
  *a = *b; *b = kept;
}

int main(void) {
  struct setting const all[] = {
    {.key = "width", .value = 1'920, .level = normal},
    {.key = "height", .value = 1'080, .level = quiet},
    {.key = "depth", .value = 0x00'FF, .level = loud},
  };
  bool found = find_setting(all, sizeof all / sizeof all[0], "height") != nullptr;
  char marker = u8'x';
  long a = 1, b = 2;
  swap_longs(&a, &b);
  typeof_unqual(all[0].value) copy = all[0].value;
  printf("%s %d %c %ld %ld\n", SETTINGS_NAME, found, marker, a, copy);
  return found == true && permissions != 0 ? 0 : 1;
}
