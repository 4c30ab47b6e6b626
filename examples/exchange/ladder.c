#include "ladder.h"

#include <stdarg.h>
#include <string.h>

/* Room between the rails: the longest message name, and an arrow on both sides of it. */
enum { rungWidth = 33 };

void note(Notes *notes, const char *format, ...) {
    va_list arguments;
    va_start(arguments, format);
    const size_t room = sizeof notes->text - notes->used;
    const int length = vsnprintf(notes->text + notes->used, room, format, arguments);
    va_end(arguments);
    /* The line and its end must both fit, or the line is taken back. */
    if (length < 0 || (size_t)length + 1 >= room) {
        notes->text[notes->used] = '\0';
        return;
    }
    notes->used += (size_t)length;
    notes->text[notes->used++] = '\n';
    notes->text[notes->used] = '\0';
}

void print_ladder_head(FILE *stream) {
    fprintf(stream, "AP %*s AC\n", rungWidth - 4, "");
    fprintf(stream, " |%*s|  bytes  values\n", rungWidth, "");
}

void print_ladder_title(FILE *stream, const char *title) {
    fprintf(stream, " |%*s|\n", rungWidth, "");
    fprintf(stream, " |  %-*s|\n", rungWidth - 2, title);
}

static void print_rung(FILE *stream, bool isToAc, const char *name) {
    char rung[rungWidth + 1];
    const size_t length = strlen(name) < rungWidth - 4 ? strlen(name) : rungWidth - 4;
    const size_t start = (rungWidth - length) / 2;
    memset(rung, '-', rungWidth);
    rung[rungWidth] = '\0';
    rung[start - 1] = ' ';
    memcpy(rung + start, name, length);
    rung[start + length] = ' ';
    rung[isToAc ? rungWidth - 1 : 0] = isToAc ? '>' : '<';
    fprintf(stream, " |%s|", rung);
}

void print_ladder_row(FILE *stream, bool isToAc, const char *name, uint32_t bytes,
                      const Notes *notes) {
    print_rung(stream, isToAc, name);
    fprintf(stream, "%7u", (unsigned)bytes);
    const char *line = notes->text;
    for (const char *end = strchr(line, '\n'); end != NULL; end = strchr(line, '\n')) {
        if (line != notes->text)
            fprintf(stream, " |%*s|%7s", rungWidth, "", "");
        fprintf(stream, "  %.*s\n", (int)(end - line), line);
        line = end + 1;
    }
    if (line == notes->text)
        fputc('\n', stream);
}
