#ifndef WORD_COUNT_H
#define WORD_COUNT_H
#include <stdio.h>

struct counts
{
  long lines; long words;
  long characters;
};

void count_stream (FILE *in, struct counts *totals);
#endif
