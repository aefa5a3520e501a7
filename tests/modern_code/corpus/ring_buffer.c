/* A ring buffer of bytes in C11: _Static_assert, _Generic, anonymous unions, designated
   initialisers, compound literals, _Alignas, _Noreturn, u8 and wide strings, digraphs. */
#include <assert.h>
#include <stdalign.h>
#include <stddef.h>
#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>
#include <uchar.h>

#define CAPACITY 64u
#define type_name(x) _Generic((x), int: "int", double: "double", char *: "string", default: "other")
#define MAX(a, b) ((a) > (b) ? (a) : (b))

_Static_assert(CAPACITY % 2 == 0, "capacity must be even");

struct ring {
  _Alignas(16) unsigned char bytes[CAPACITY];
  size_t head, tail;
  union { uint32_t flags; struct { uint16_t low, high; }; };
};

static _Noreturn void fail(char const *why) { fprintf(stderr, "%s\n", why); exit(1); }

static int ring_push(struct ring *r, unsigned char byte) {
  size_t next = (r->head + 1) % CAPACITY;
  if (next == r->tail) return 0;
  r->bytes[r->head] = byte; r->head = next;
  return 1;
}

static int ring_pop(struct ring *r, unsigned char *byte) {
  if (r->head == r->tail) return 0;
  *byte = r->bytes[r->tail];
  r->tail = (r->tail + 1) % CAPACITY;
  return 1;
}

static size_t ring_size(struct ring const *r) { return (r->head + CAPACITY - r->tail) % CAPACITY; }

struct point { int x, y; };

static int manhattan(struct point a, struct point b) { return abs(a.x - b.x) + abs(a.y - b.y); }

int main(void) {
  struct ring r = {.head = 0, .tail = 0, .flags = 0};
  char const *greeting = (char const *)u8"gr\u00fc\u00df dich";
  char16_t const *wide16 = u"ring";
  char32_t const *wide32 = U"ring";
  wchar_t const *native = L"ring";
  int grid<:2:><:2:> = <%<%1, 2%>, <%3, 4%>%>;
  for (size_t i = 0; i < strlen(greeting); ++i) if (!ring_push(&r, (unsigned char)greeting[i])) fail("full");
  unsigned char byte;
  size_t popped = 0;
  while (ring_pop(&r, &byte)) ++popped;
  int distance = manhattan((struct point){.x = 1, .y = 2}, (struct point){.y = 5, .x = -3});
  printf("%s %s %zu %d\n", type_name(distance), type_name(greeting), popped, MAX(grid[1][1], distance));
  assert(ring_size(&r) == 0);
  return wide16 && wide32 && native && alignof(struct ring) >= 16 ? 0 : 1;
}
