// Types and messages as constants, for code that is compiled once more for each of them.
#ifndef TARN_CONSTANTS_H
#define TARN_CONSTANTS_H

#include <stddef.h>

#include <type_traits>
#include <utility>

#include "catalogue/catalogue.h"

namespace [[gnu::visibility("hidden")]] tarn {

// A type or message that is named where the code is compiled. It stands wherever a plain one does.
template <auto value>
using Constant = std::integral_constant<decltype(value), value>;

template <class Id>
inline constexpr bool isConstant = !std::is_enum_v<Id> && !std::is_same_v<Id, SlotTable>;

// A case of a switch by type or message: calls `use` with it as a constant. Handlers of rows.
#define TARN_TYPE_CASE(name_, ...)                                                                 \
    case type##name_:                                                                              \
        return use(Constant<type##name_>());
#define TARN_MESSAGE_CASE(name_, ...)                                                              \
    case message##name_:                                                                           \
        return use(Constant<message##name_>());

// A type or message as the engine takes it: built for speed a constant, else a plain one.
template <auto value>
inline constexpr std::conditional_t<builtForSpeed, Constant<value>, decltype(value)> asBuilt{
    Constant<value>()};

// The type of a list's items or elements.
inline constexpr TypeId element_of(TypeId list) {
    return type_of(list).array.item;
}
template <TypeId list>
inline constexpr auto element_of(Constant<list>) {
    return Constant<type_of(list).array.item>();
}

} // namespace tarn

#endif
