// The checking mode, which TARN_HOST_CHECK=1 in the environment asks for.
//
// Every block is known by its address, stands between guards, and stays in quarantine for a while
// after its release. A mistake is reported as a fatal error that names the block and the places
// that allocated and freed it. The price is a lock and a search for each call.
#ifndef TARN_HOST_CHECKING_H
#define TARN_HOST_CHECKING_H

#include <cstdint>
#include <cstdio>

#include "support.h"

namespace tarn_host {

// Set once, before the first block.
[[gnu::visibility("hidden")]] extern bool is_checking;

void begin_checking();

void *allocate_checked(uint32_t size, Place place);
// 1, or 0 after a report.
uint32_t release_checked(void **block, Place place);

// Whether the object may be linked into the list; if not, that was reported. Nodes outside the
// host's blocks are not its business.
bool may_link(const VelDllHead *head, const VelDllNode *node, Place place);
// Reports an object that is not in the list.
void check_unlink(const VelDllHead *head, const VelDllNode *node, Place place);

struct Checked {
    uint64_t blocks;
    uint64_t bytes;
};
Checked count_checked();
void list_checked(FILE *stream);

// Inspects all free blocks one last time and gives them back.
void empty_quarantine();

} // namespace tarn_host

#endif
