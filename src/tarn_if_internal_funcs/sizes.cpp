#include "tarn_if_internal_funcs/sizes.h"

#include "objects.h"
#include "tarn_if_internal_funcs/values.h"

namespace tarn {

uint32_t ie_size(const TarnIe *ie) {
    const TypeId id = type_of_tag(ie->tag);
    const Type &type = type_of(id);
    if (type.hasIe == 0)
        return headerSize;
    if (type.fixedSize != 0)
        return headerSize + type.fixedSize;
    if (is_composite(type.kind))
        return add_sizes(headerSize, ies_size(children_of(ie), TARN_CALLER(moduleInternal)));
    return add_sizes(headerSize, value_size(id, value_of(ie)));
}

uint32_t ies_size(const VelDllHead *list, Caller caller) {
    uint32_t size = 0;
    for (const TarnIe *ie = first_ie(list, caller); ie != nullptr; ie = next_ie(list, ie, caller))
        size = add_sizes(size, ie_size(ie));
    return size;
}

} // namespace tarn
