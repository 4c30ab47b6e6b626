/* The exchange as a ladder: one row per message, with an arrow between AP and AC, the bytes that it
 * takes, and a few of its values. */
#ifndef EXCHANGE_LADDER_H
#define EXCHANGE_LADDER_H

#include <stdbool.h>
#include <stddef.h>
#include <stdint.h>
#include <stdio.h>

/* What a row tells of its message: a few lines of text. */
typedef struct Notes {
    char text[1024];
    size_t used;
} Notes;

/* Adds a line; what does not fit is left out. */
__attribute__((format(printf, 2, 3))) void note(Notes *notes, const char *format, ...);

void print_ladder_head(FILE *stream);
void print_ladder_title(FILE *stream, const char *title);
void print_ladder_row(FILE *stream, bool isToAc, const char *name, uint32_t bytes,
                      const Notes *notes);

#endif
