#include "tarn_if_internal_funcs/judging.h"

namespace tarn {

namespace {

// Static, as there is nobody at the address.
struct Nobody {
    static void enters(Place, TypeId, const uint8_t *) {}
    static void finds(Reason, const uint8_t *, uint32_t) {}
    static void reads(uint32_t, uint32_t) {}
    static void leaves(Outcome, Fate) {}
};

Judge<Nobody> judge() {
    return Judge<Nobody>(nullptr);
}

} // namespace

const uint8_t *judge_msg(const SlotTable &table, const uint8_t *at, uint32_t length) {
    Input in{at, length};
    return decodes(judge().slots(table, &in)) ? in.at : nullptr;
}

Reason judge_ie(TypeId id, void *to, Input *in) {
    return judge().ie(id, to, in);
}

Reason judge_value(TypeId id, void *to, uint32_t length, Input *in) {
    return judge().value(type_of(id), to, length, in);
}

Fate judge_slot(const Slot &slot, const NumbersInBytes &numbers, Input *in) {
    return judge().slot(slot, numbers, in);
}

} // namespace tarn
