// The platform's services as the floor calls them, and bytes on the wire.
#ifndef TARN_FLOOR_PLATFORM_H
#define TARN_FLOOR_PLATFORM_H

#include <stdint.h>
#include <string.h>

#include "tarn_if.h"

namespace tarn_floor {

inline constexpr char module[] = "tarn_floor";

// ---- Objects -----------------------------------------------------------------------------------

template <class Object>
inline Object *allocate() {
    // As in the library: null on entry, and cleared through a pointer.
    void *block;
    void **variable = &block;
    asm volatile("" : "+r"(variable));
    *variable = nullptr;
    velAllocMemoryWithIds(sizeof(Object), variable, module, __LINE__);
    return static_cast<Object *>(block);
}

inline TarnMsg *create_msg(uint16_t id) {
    auto *msg = allocate<TarnMsg>();
    xVelDllInitHead(&msg->ies, 0, module, __LINE__);
    msg->messageId = id;
    return msg;
}

template <class Ie>
inline Ie *create_ie(uint16_t tag) {
    auto *ie = allocate<Ie>();
    xVelDllInitNode(&ie->ie.node, module, __LINE__);
    ie->ie.tag = tag;
    ie->ie.extractHistory = 0;
    return ie;
}

template <class Ie>
inline void link(VelDllHead *list, Ie *ie) {
    xVelDllAddToTail(list, &ie->ie.node, module, __LINE__);
}

// Creates a primitive IE; its value is for the caller to fill.
template <class Ie>
inline Ie *add(VelDllHead *list, uint16_t tag) {
    Ie *ie = create_ie<Ie>(tag);
    link(list, ie);
    return ie;
}

template <class Ie, class Value>
inline void append(VelDllHead *list, uint16_t tag, const Value &value) {
    Ie *ie = create_ie<Ie>(tag);
    ie->value = value;
    link(list, ie);
}

template <class Ie>
inline Ie *add_composite(VelDllHead *list, uint16_t tag) {
    Ie *ie = create_ie<Ie>(tag);
    xVelDllInitHead(&ie->children, 0, module, __LINE__);
    link(list, ie);
    return ie;
}

// ---- Walks -------------------------------------------------------------------------------------

// One walk of a list, from the head to the null behind the last member.
class Walk {
public:
    explicit Walk(const VelDllHead *list)
        : list_(list), node_(xVelDllGetHead(list, module, __LINE__)) {}

    // The present member; the walk moves on.
    template <class Ie>
    const Ie *take() {
        const auto *ie = reinterpret_cast<const Ie *>(node_);
        node_ = xVelDllGetNext(list_, node_, module, __LINE__);
        return ie;
    }

private:
    const VelDllHead *list_;
    VelDllNode *node_;
};

// The member at a position, by a walk from the head, as an extract operation finds it.
template <class Ie>
inline Ie *extract(const VelDllHead *list, unsigned position) {
    VelDllNode *node = xVelDllGetHead(list, module, __LINE__);
    for (unsigned i = 0; i < position; ++i)
        node = xVelDllGetNext(list, node, module, __LINE__);
    auto *ie = reinterpret_cast<Ie *>(node);
    ie->ie.extractHistory = 1;
    return ie;
}

template <class Ie, class Value>
inline void extract_value(const VelDllHead *list, unsigned position, Value *value) {
    *value = extract<Ie>(list, position)->value;
}

// ---- Deletion ----------------------------------------------------------------------------------

inline void release(void *block) {
    velFreeMemoryWithIds(&block, module, __LINE__);
}

inline VelDllNode *unlink_head(VelDllHead *list) {
    VelDllNode *node = xVelDllGetHead(list, module, __LINE__);
    xVelDllRemoveNode(list, node, module, __LINE__);
    return node;
}

inline void delete_primitives(VelDllHead *list, unsigned count) {
    for (unsigned i = 0; i < count; ++i)
        release(unlink_head(list));
}

// The emptying of a list ends where it finds no head.
inline void expect_empty(VelDllHead *list) {
    xVelDllGetHead(list, module, __LINE__);
}

inline void delete_msg_of_primitives(TarnMsg *msg, unsigned count) {
    delete_primitives(&msg->ies, count);
    expect_empty(&msg->ies);
    release(msg);
}

// ---- Bytes -------------------------------------------------------------------------------------

class Writer {
public:
    explicit Writer(uint8_t *at) : at_(at) {}

    void u8(uint32_t value) { *at_++ = uint8_t(value); }
    void u16(uint32_t value) {
        at_[0] = uint8_t(value >> 8);
        at_[1] = uint8_t(value);
        at_ += 2;
    }
    void u32(uint32_t value) {
        at_[0] = uint8_t(value >> 24);
        at_[1] = uint8_t(value >> 16);
        at_[2] = uint8_t(value >> 8);
        at_[3] = uint8_t(value);
        at_ += 4;
    }
    void header(uint32_t tag, uint32_t length) {
        u16(tag);
        u32(length);
    }
    void ie8(uint32_t tag, uint32_t value) {
        header(tag, 1);
        u8(value);
    }
    void ie16(uint32_t tag, uint32_t value) {
        header(tag, 2);
        u16(value);
    }
    void ie32(uint32_t tag, uint32_t value) {
        header(tag, 4);
        u32(value);
    }
    void bytes(const uint8_t *from, uint32_t count) {
        memcpy(at_, from, count);
        at_ += count;
    }

private:
    uint8_t *at_;
};

class Reader {
public:
    explicit Reader(const uint8_t *at) : at_(at) {}

    uint8_t u8() { return *at_++; }
    uint16_t u16() {
        at_ += 2;
        return uint16_t(at_[-2] << 8 | at_[-1]);
    }
    uint32_t u32() {
        at_ += 4;
        return uint32_t(at_[-4]) << 24 | uint32_t(at_[-3]) << 16 | uint32_t(at_[-2]) << 8 | at_[-1];
    }
    void skip(uint32_t count) { at_ += count; }
    void header() { skip(6); }
    uint32_t length() {
        skip(2);
        return u32();
    }
    uint8_t ie8() {
        header();
        return u8();
    }
    uint16_t ie16() {
        header();
        return u16();
    }
    uint32_t ie32() {
        header();
        return u32();
    }
    void bytes(uint8_t *to, uint32_t count) {
        memcpy(to, at_, count);
        at_ += count;
    }

private:
    const uint8_t *at_;
};

} // namespace tarn_floor

#endif
