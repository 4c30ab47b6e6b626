// Memory from malloc, counted and limited. What the host takes and gives back goes through here.
#ifndef TARN_HOST_MEMORY_H
#define TARN_HOST_MEMORY_H

#include <cstddef>

#include "support.h"

namespace tarn_host {

// Never null: without memory the program ends, after a report that names the place and the `size`
// that was asked for. Before that, `reclaim` gives back what the host keeps for reuse.
void *take_memory(std::size_t bytes, uint32_t size, Place place, void (*reclaim)());
[[noreturn]] void end_without_memory(std::size_t bytes, uint32_t size, Place place);
void give_memory(void *memory, std::size_t bytes);

// Has malloc return its free pages to the system, where malloc is glibc's.
void give_pages_back();

// What has been taken and not given back.
std::size_t held_bytes();

} // namespace tarn_host

#endif
