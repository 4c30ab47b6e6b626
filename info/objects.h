// Message objects and IE objects by way of the host's services.
#ifndef TARN_INFO_OBJECTS_H
#define TARN_INFO_OBJECTS_H

#include <memory>

#include "facts.h"

namespace info {

constexpr const char *moduleName = "tarn_info";

// What follows the head of an IE object: a primitive's value, or a composite's list of children.
inline void *value_of(TarnIe *ie) {
    return ie + 1;
}
inline const void *value_of(const TarnIe *ie) {
    return ie + 1;
}
inline VelDllHead *children_of(TarnIe *ie) {
    return static_cast<VelDllHead *>(value_of(ie));
}
inline const VelDllHead *children_of(const TarnIe *ie) {
    return static_cast<const VelDllHead *>(value_of(ie));
}

inline const TarnIe *first_ie(const VelDllHead *list) {
    return reinterpret_cast<const TarnIe *>(xVelDllGetHead(list, moduleName, __LINE__));
}
inline const TarnIe *next_ie(const VelDllHead *list, const TarnIe *ie) {
    return reinterpret_cast<const TarnIe *>(xVelDllGetNext(list, &ie->node, moduleName, __LINE__));
}

struct Deleter {
    void operator()(TarnMsg *msg) const { TarnDeleteMsg(msg); }
    void operator()(TarnIe *ie) const { TarnDeleteIe(ie); }
};
using MsgPtr = std::unique_ptr<TarnMsg, Deleter>;
using IePtr = std::unique_ptr<TarnIe, Deleter>;

// A new IE object, unlinked: a composite without children, a primitive without a value yet.
TarnIe *new_ie(const TarnInfoType &type);

// Whether a child is called for in this slot, where the list holds the owner's children.
bool is_called_for(const TarnInfoSlot &slot, const VelDllHead *list);

} // namespace info

#endif
