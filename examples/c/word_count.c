/* word_count: counts lines, words and characters of its input, like wc. */
#include <ctype.h>
#include <stdio.h>
#include "word_count.h"

static int is_separator(int c){return c==' '||c=='\t'||c=='\n';}

void count_stream(FILE *in, struct counts* totals)
{
   int c, in_word = 0;
   while ((c = getc(in)) != EOF)
   {
      ++totals->characters;
      if (c == '\n') ++totals->lines;
      if (is_separator(c)) in_word = 0;
      else if (!in_word) { in_word = 1; ++totals->words; }
   }
}

int main(int argc, char **argv) {
	struct counts totals = {0, 0, 0};
	int i;
	if (argc < 2) { count_stream(stdin, &totals); }
	else
	for (i = 1; i < argc; i++) {
		FILE *in = fopen(argv[i], "r");
		if (in == NULL) { perror(argv[i]); return 1; }
		count_stream(in, &totals); fclose(in);
	}
	printf("%7ld %7ld %7ld\n", totals.lines, totals.words, totals.characters);
	return 0;
}
