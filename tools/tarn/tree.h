// A message as a readable tree.
#ifndef TARN_TOOL_TREE_H
#define TARN_TOOL_TREE_H

#include <ostream>

#include "tarn/values.h"

namespace tool {

// One line per IE, nested TLV or element: the byte at which it begins, name, tag, value.
void print_tree(std::ostream &out, const TarnMsg &msg, const Message &message);

} // namespace tool

#endif
