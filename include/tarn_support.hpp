/* What tarn.hpp is made of: views of bytes, results, optional members, lists, owners. Include
 * tarn.hpp, which includes this. */
#ifndef TARN_SUPPORT_HPP
#define TARN_SUPPORT_HPP

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstring>
#include <optional>
#include <type_traits>
#include <utility>
#include <vector>

#include "tarn_if.h"

#ifdef TARN_WITH_INFO
#include "tarn_info.h"
#endif

namespace tarn {

/* ==== Bytes ================================================================================== */

/* Bytes of somebody else's: made from a pointer and a size, or from whatever contiguous container
 * of bytes has data() and size(). May be empty, and then may have no address. */
class ByteView {
public:
    constexpr ByteView() = default;
    constexpr ByteView(const std::uint8_t *data, std::size_t size) : data_(data), size_(size) {}
    template <class Container,
              class = std::enable_if_t<std::is_convertible_v<
                  decltype(std::declval<const Container &>().data()), const std::uint8_t *>>>
    constexpr ByteView(const Container &container)
        : data_(container.data()), size_(container.size()) {}
    template <std::size_t count>
    constexpr ByteView(const std::uint8_t (&bytes)[count]) : data_(bytes), size_(count) {}

    constexpr const std::uint8_t *data() const { return data_; }
    constexpr std::size_t size() const { return size_; }
    constexpr bool empty() const { return size_ == 0; }
    constexpr const std::uint8_t *begin() const { return data_; }
    constexpr const std::uint8_t *end() const { return data_ + size_; }

private:
    const std::uint8_t *data_ = nullptr;
    std::size_t size_ = 0;
};

/* Room for bytes, likewise. */
class Room {
public:
    constexpr Room() = default;
    constexpr Room(std::uint8_t *data, std::size_t size) : data_(data), size_(size) {}
    template <class Container, class = std::enable_if_t<std::is_convertible_v<
                                   decltype(std::declval<Container &>().data()), std::uint8_t *>>>
    constexpr Room(Container &container) : data_(container.data()), size_(container.size()) {}
    template <std::size_t count>
    constexpr Room(std::uint8_t (&bytes)[count]) : data_(bytes), size_(count) {}

    constexpr std::uint8_t *data() const { return data_; }
    constexpr std::size_t size() const { return size_; }

private:
    std::uint8_t *data_ = nullptr;
    std::size_t size_ = 0;
};

/* ==== Results ================================================================================ */

enum class Status : std::uint8_t {
    ok,
    empty,          /* there are no bytes, or there is no object */
    noRoom,         /* the message takes more bytes than there is room for */
    unknownMessage, /* the bytes do not begin with a message id that is in use */
    otherMessage,   /* the bytes are another message than the one asked for */
    refused,        /* the bytes do not decode, or the values do not make a message */
    unhandled,      /* the visitor takes no message of this type */
};

/* Why a call failed. Linked with libtarn_info (the compiler is then given -DTARN_WITH_INFO, as the
 * CMake target tarn::info and tarn_info.pc do), it says where and why a message was refused. */
class Error {
public:
    Error() { text_[0] = '\0'; }
    explicit Error(Status status) : Error() { status_ = status; }

    Status status() const { return status_; }
    /* The place in the bytes where the message was refused, if `what` names one, else 0. */
    std::uint32_t offset() const { return offset_; }
    /* A sentence without a full stop, never null. */
    const char *what() const { return text_[0] != '\0' ? text_ : words_of(status_); }

    void explain(std::uint32_t offset, const char *path, const char *sentence) {
        offset_ = offset;
        std::snprintf(text_, sizeof text_, "%s%s%s", path, *path != '\0' ? ": " : "", sentence);
    }

private:
    static const char *words_of(Status status) {
        switch (status) {
        case Status::ok:
            return "no error";
        case Status::empty:
            return "there is nothing to work on";
        case Status::noRoom:
            return "the message takes more bytes than there is room for";
        case Status::unknownMessage:
            return "the bytes do not begin with the id of a message";
        case Status::otherMessage:
            return "the bytes hold another message";
        case Status::refused:
            return "refused: something is missing, malformed or out of range";
        default:
            return "the visitor does not take this message";
        }
    }

    Status status_ = Status::ok;
    std::uint32_t offset_ = 0;
    char text_[256]; /* a path and a sentence, cut where they are longer */
};

/* A value or why there is none. The value of a failed result is empty and must not be used. */
template <class Value>
class Result {
public:
    Result() = default;
    Result(Value value) : value_(std::move(value)) {}
    template <class... Arguments>
    explicit Result(std::in_place_t, Arguments... arguments) : value_(arguments...) {}
    Result(const Error &error) : error_(error) {}

    explicit operator bool() const { return error_.status() == Status::ok; }
    Value &operator*() { return value_; }
    const Value &operator*() const { return value_; }
    Value *operator->() { return &value_; }
    const Value *operator->() const { return &value_; }
    const Error &error() const { return error_; }
    void fail(const Error &error) { error_ = error; }

private:
    Error error_;
    Value value_{};
};

/* Several lambdas as one visitor. */
template <class... Functions>
struct overloaded : Functions... {
    using Functions::operator()...;
};
template <class... Functions>
overloaded(Functions...) -> overloaded<Functions...>;

/* ==== What records are made of =============================================================== */

/* An optional member of a record, much as a std::optional of it: reading tells whether the record's
 * presence bit is set, assigning a value sets the bit and assigning std::nullopt clears it. As with
 * std::optional, `*` and `->` are for members that are there. */
template <class Value>
class OptionalMember {
public:
    using Mask = std::conditional_t<std::is_const_v<Value>, const std::uint8_t, std::uint8_t>;

    OptionalMember(Value &value, Mask &mask, std::uint8_t bit)
        : value_(&value), mask_(&mask), bit_(bit) {}

    bool has_value() const { return (*mask_ & bit_) != 0; }
    explicit operator bool() const { return has_value(); }
    Value &operator*() const { return *value_; }
    Value *operator->() const { return value_; }
    /* The member, or null if it is not there. */
    Value *get() const { return has_value() ? value_ : nullptr; }
    template <class Other>
    std::remove_const_t<Value> value_or(Other &&other) const {
        return has_value() ? *value_ : static_cast<std::remove_const_t<Value>>(other);
    }

    /* Makes the member present and empty, for filling in place. */
    Value &emplace() const {
        *mask_ = static_cast<std::uint8_t>(*mask_ | bit_);
        *value_ = Value{};
        return *value_;
    }
    void reset() const { *mask_ = static_cast<std::uint8_t>(*mask_ & ~bit_); }
    const OptionalMember &operator=(const std::remove_const_t<Value> &value) const {
        *value_ = value;
        *mask_ = static_cast<std::uint8_t>(*mask_ | bit_);
        return *this;
    }
    const OptionalMember &operator=(std::nullopt_t) const {
        reset();
        return *this;
    }

private:
    Value *value_;
    Mask *mask_;
    std::uint8_t bit_;
};

/* A string of up to `capacity` bytes, held in place. */
template <std::uint32_t capacity>
struct ByteString {
    std::uint32_t length = 0;
    std::uint8_t bytes[capacity] = {};

    static constexpr std::size_t max_size() { return capacity; }
    std::size_t size() const { return length < capacity ? length : capacity; }
    ByteView view() const { return {bytes, size()}; }
    /* Takes a copy of the bytes; more than there is room for leave the string as it was. */
    bool assign(ByteView from) {
        if (from.size() > capacity)
            return false;
        if (!from.empty())
            std::memcpy(bytes, from.data(), from.size());
        length = static_cast<std::uint32_t>(from.size());
        return true;
    }
    const std::uint8_t *data() const { return bytes; }
    const std::uint8_t *begin() const { return bytes; }
    const std::uint8_t *end() const { return bytes + size(); }
    friend bool operator==(const ByteString &a, const ByteString &b) {
        return a.size() == b.size() && std::memcmp(a.bytes, b.bytes, a.size()) == 0;
    }
    friend bool operator!=(const ByteString &a, const ByteString &b) { return !(a == b); }
};

/* Up to `capacity` items, held in place. */
template <class Item, class Count, std::size_t capacity>
struct List {
    Count count = 0;
    Item items[capacity] = {};

    static constexpr std::size_t max_size() { return capacity; }
    std::size_t size() const { return count < capacity ? count : capacity; }
    bool empty() const { return count == 0; }
    Item *begin() { return items; }
    Item *end() { return items + size(); }
    const Item *begin() const { return items; }
    const Item *end() const { return items + size(); }
    Item &operator[](std::size_t index) { return items[index]; }
    const Item &operator[](std::size_t index) const { return items[index]; }
    void clear() { count = 0; }
    /* Adds the item and tells so, or finds the list full and changes nothing. */
    bool push_back(const Item &item) {
        Item *place = emplace_back();
        if (place != nullptr)
            *place = item;
        return place != nullptr;
    }
    /* Adds an empty item, for filling in place; null if the list is full. */
    Item *emplace_back() {
        if (count >= capacity)
            return nullptr;
        Item *place = items + count;
        count = static_cast<Count>(count + 1);
        *place = Item{};
        return place;
    }
};

/* ==== What objects are made of =============================================================== */

/* The objects that `take` extracts one after the other, for a range-for. Each is marked as
 * extracted when its turn comes. */
template <class Owner, class Value, std::optional<Value> (Owner::*take)() const>
class Extraction {
public:
    explicit Extraction(const Owner &owner) : owner_(owner) {}

    struct End {};
    class Iterator {
    public:
        explicit Iterator(const Owner &owner) : owner_(owner), value_((owner.*take)()) {}
        const Value &operator*() const { return *value_; }
        const Value *operator->() const { return &*value_; }
        Iterator &operator++() {
            value_ = (owner_.*take)();
            return *this;
        }
        bool operator!=(End) const { return value_.has_value(); }

    private:
        Owner owner_;
        std::optional<Value> value_;
    };

    Iterator begin() const { return Iterator(owner_); }
    End end() const { return {}; }

private:
    Owner owner_;
};

/* Owns the object that a Ref refers to and deletes it once, unless it was given away. Moves; does
 * not copy. An owner that was moved from is empty. */
template <class Ref>
class Owned : public Ref {
public:
    Owned() = default;
    explicit Owned(typename Ref::Handle handle) : Ref(handle) {}
    Owned(Owned &&other) noexcept : Ref(other.release()) {}
    Owned &operator=(Owned &&other) noexcept {
        Owned former(this->handle());
        this->handle_ = other.release();
        return *this;
    }
    Owned(const Owned &) = delete;
    Owned &operator=(const Owned &) = delete;
    ~Owned() {
        if (this->handle_ != nullptr)
            Ref::destroy(this->handle_);
    }
    static Owned create() { return Owned(Ref::create()); }

    explicit operator bool() const { return this->handle_ != nullptr; }
    /* Gives the object to the caller, who deletes it. */
    typename Ref::Handle release() { return std::exchange(this->handle_, nullptr); }
};

namespace detail {

/* A value or record of this header has the layout of the one in the C interface. */
template <class C, class Cpp>
C *as_c(Cpp *value) {
    static_assert(sizeof(C) == sizeof(Cpp) && alignof(C) == alignof(Cpp));
    return reinterpret_cast<C *>(value);
}

/* What the C interface can be told of a size. No message is nearly as long. */
inline std::uint32_t size32(std::size_t size) {
    return size > UINT32_MAX ? UINT32_MAX : static_cast<std::uint32_t>(size);
}

inline std::uint32_t id_in(ByteView bytes) {
    return bytes.empty() ? 0 : TarnGetMessageId(bytes.data(), size32(bytes.size()));
}

template <class M>
using CRecordOf = typename M::CRecord;

/* Written from the rows, in tarn.hpp. */
const char *name_of(std::uint32_t id);
bool is_valid(std::uint32_t id, const TarnMsg *msg);
bool pack(std::uint32_t id, const TarnMsg *msg, Room room);
template <class Use>
Error with_record(std::uint32_t id, Use &&use);

} // namespace detail

/* A reference to an object of the C interface that something else owns. An empty one fails every
 * call. */
template <class Object>
class ObjectRef {
public:
    using Handle = Object *;

    ObjectRef() = default;
    explicit ObjectRef(Handle handle) : handle_(handle) {}
    Handle handle() const { return handle_; }

protected:
    /* Taken in by their callers, each of which names one call, they cost nothing but the check. */
    template <class C, class Value>
    [[gnu::always_inline]] bool append(std::uint32_t (*call)(Object *, const C *),
                                       const Value &value) const {
        return handle_ != nullptr && call(handle_, detail::as_c<const C>(&value)) != 0;
    }
    template <class C, class Child>
    [[gnu::always_inline]] bool append_ie(std::uint32_t (*call)(Object *, C *),
                                          Child &child) const {
        return handle_ != nullptr && child && call(handle_, child.release()) != 0;
    }
    template <class Value, class C>
    [[gnu::always_inline]] std::optional<Value> extract(std::uint32_t (*call)(Object *,
                                                                              C *)) const {
        if constexpr (std::is_integral_v<Value>) {
            Value number = 0;
            if (handle_ == nullptr || call(handle_, &number) == 0)
                return std::nullopt;
            return number;
        } else {
            std::optional<Value> value(std::in_place); /* filled in place: it may be large */
            if (handle_ == nullptr || call(handle_, detail::as_c<C>(&*value)) == 0)
                value.reset();
            return value;
        }
    }
    template <class Ref, class C>
    [[gnu::always_inline]] std::optional<Ref> extract_ie(std::uint32_t (*call)(Object *,
                                                                               C **)) const {
        C *child; /* set by the call: to store a null before slows some processors */
        if (handle_ == nullptr || call(handle_, &child) == 0)
            return std::nullopt;
        return Ref(child);
    }

    Handle handle_ = nullptr;
};

/* A message object of any type. */
class MessageRef : public ObjectRef<TarnMsg> {
public:
    using ObjectRef::ObjectRef;
    static void destroy(Handle msg) { TarnDeleteMsg(msg); }

    /* 0 for an empty one. */
    std::uint32_t id() const { return handle_ != nullptr ? handle_->messageId : 0; }
    /* Null for an empty one. */
    const char *name() const { return detail::name_of(id()); }
    /* Bytes on the wire. */
    std::size_t size() const {
        return handle_ != nullptr ? static_cast<std::size_t>(TarnSizeOfMsg(handle_)) : 0;
    }
    bool is_valid() const { return detail::is_valid(id(), handle_); }
    /* Makes all that was extracted ready to be extracted again. */
    void reset_extraction() const {
        if (handle_ != nullptr)
            TarnResetMsgExtractHistory(handle_);
    }

    /* Writes the message and returns its size. It is packed whether it is valid or not. */
    Result<std::size_t> pack(Room room) const {
        const std::size_t bytes = size();
        if (bytes == 0)
            return Error(Status::empty);
        if (bytes > room.size())
            return Error(Status::noRoom);
        if (!detail::pack(id(), handle_, room))
            return Error(Status::refused);
        return bytes;
    }
    Result<std::vector<std::uint8_t>> pack() const {
        Result<std::vector<std::uint8_t>> bytes;
        bytes->resize(size());
        if (const auto packed = pack(Room(*bytes)); !packed)
            bytes.fail(packed.error());
        return bytes;
    }

    /* The message as one of type MsgRef, if it is. */
    template <class MsgRef>
    std::optional<MsgRef> as() const {
        if (id() != MsgRef::type_id)
            return std::nullopt;
        return MsgRef(handle_);
    }
};

using Message = Owned<MessageRef>;

/* ==== Why, from libtarn_info ================================================================= */

namespace detail {

#ifdef TARN_WITH_INFO
[[gnu::cold]] inline Error why(Status status, const TarnInfoExplanation *explanation) {
    Error error(status);
    if (explanation != nullptr && explanation->faultCount != 0) {
        const TarnInfoFinding &fault = explanation->faults[0];
        error.explain(fault.offset, fault.path, fault.sentence);
    }
    tarnInfoFreeExplanation(explanation);
    return error;
}
[[gnu::cold]] inline Error why_bytes(Status status, ByteView bytes) {
    return why(status, tarnInfoExplainBytes(bytes.data(), size32(bytes.size())));
}
[[gnu::cold]] inline Error why_record(Status status, std::uint32_t id, const void *record) {
    return why(status, tarnInfoExplainRecord(id, record, UINT32_MAX));
}
#else
inline Error why_bytes(Status status, ByteView) {
    return Error(status);
}
inline Error why_record(Status status, std::uint32_t, const void *) {
    return Error(status);
}
#endif

} // namespace detail

/* ==== Bytes to objects and records, and back ================================================= */

/* The message object that the bytes hold, whatever its type. */
inline Result<Message> unpack(ByteView bytes) {
    if (bytes.empty())
        return Error(Status::empty);
    TarnMsg *msg; /* set by the call, as above */
    if (TarnUnpackNewMsg(bytes.data(), detail::size32(bytes.size()), &msg) == 0)
        return detail::why_bytes(Status::refused, bytes);
    return Result<Message>(std::in_place, msg);
}

namespace detail {

/* Less room than any M may need: too little for this one would be fatal to the C interface. */
template <class M>
[[gnu::noinline]] std::uint32_t build_aside(const M &record, Room room, Status *status) {
    std::uint8_t bytes[M::max_size];
    const std::uint32_t size = M::c_build(bytes, M::max_size, as_c<const CRecordOf<M>>(&record));
    *status = size > room.size() ? Status::noRoom : size == 0 ? Status::refused : Status::ok;
    if (*status == Status::ok)
        std::memcpy(room.data(), bytes, size);
    return size;
}

} // namespace detail

/* Writes the record and returns the size of the message. Room for M::max_size bytes is written to
 * at once. */
template <class M>
Result<std::size_t> build(const M &record, Room room) {
    const auto *c = detail::as_c<const detail::CRecordOf<M>>(&record);
    Status status = Status::ok;
    std::uint32_t size = 0;
    if (room.size() < M::max_size)
        size = detail::build_aside(record, room, &status);
    else if ((size = M::c_build(room.data(), M::max_size, c)) == 0)
        status = Status::refused;
    if (status == Status::ok)
        return static_cast<std::size_t>(size);
    return status == Status::noRoom ? Error(status) : detail::why_record(status, M::id, c);
}

template <class M>
Result<std::vector<std::uint8_t>> build(const M &record) {
    std::uint8_t bytes[M::max_size];
    const auto written = build(record, Room(bytes));
    if (!written)
        return written.error();
    return std::vector<std::uint8_t>(bytes, bytes + *written);
}

/* The record of the message that the bytes hold, if it is an M. */
template <class M>
Result<M> get(ByteView bytes) {
    Result<M> record;
    const std::uint32_t id = detail::id_in(bytes);
    if (id != M::id)
        record.fail(bytes.empty()                    ? Error(Status::empty)
                    : detail::name_of(id) == nullptr ? Error(Status::unknownMessage)
                                                     : Error(Status::otherMessage));
    else if (M::c_get(bytes.data(), detail::size32(bytes.size()),
                      detail::as_c<detail::CRecordOf<M>>(&*record)) == 0)
        record.fail(detail::why_bytes(Status::refused, bytes));
    return record;
}

/* A message that a visitor takes no record of. */
struct Other {
    std::uint32_t id;
    const char *name;
    ByteView bytes;
};

namespace detail {

template <class Visitor>
struct Visit {
    ByteView bytes;
    Visitor &visitor;

    Error operator()() const { return Error(Status::unknownMessage); }
    /* A frame of its own, so that the visit of a small message does not take a large one's stack.
     */
    template <class M>
    [[gnu::noinline]] Error operator()() const {
        if constexpr (std::is_invocable_v<Visitor &, const M &>) {
            const Result<M> record = get<M>(bytes);
            if (record)
                visitor(*record);
            return record.error();
        } else if constexpr (std::is_invocable_v<Visitor &, const Other &>) {
            visitor(Other{M::id, M::name, bytes});
            return Error();
        } else {
            return Error(Status::unhandled);
        }
    }
};

} // namespace detail

/* Calls the visitor with the record of the message that the bytes hold, or with an Other where it
 * does not take that record. The error's status is ok if the visitor was called. */
template <class Visitor>
Error visit(ByteView bytes, Visitor &&visitor) {
    if (bytes.empty())
        return Error(Status::empty);
    return detail::with_record(detail::id_in(bytes),
                               detail::Visit<std::remove_reference_t<Visitor>>{bytes, visitor});
}

} // namespace tarn

#endif
