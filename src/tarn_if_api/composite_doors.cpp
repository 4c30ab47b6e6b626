// The exported New, Append and Extract operations of the composite IEs.
#include "tarn_if.h"
#include "tarn_if_api/members.h"

using namespace tarn;

#define NEW_DOOR(name_)                                                                            \
    Tarn##name_##Ie *TarnNew##name_##Ie(void) {                                                    \
        return reinterpret_cast<Tarn##name_##Ie *>(                                                \
            create_composite(type##name_, TARN_CALLER(moduleApi)));                                \
    }

#define COMPOSITE_CHILD_DOORS(owner_, child_)                                                      \
    uint32_t TarnAppend##child_##IeTo##owner_##Ie(Tarn##owner_##Ie *ie, Tarn##child_##Ie *child) { \
        return link(head_of(ie), head_of(child));                                                  \
    }                                                                                              \
    uint32_t TarnExtract##child_##IeFrom##owner_##Ie(Tarn##owner_##Ie *ie,                         \
                                                     Tarn##child_##Ie **child) {                   \
        return borrow(head_of(ie), reinterpret_cast<TarnIe **>(child), asBuilt<type##child_>,      \
                      __LINE__);                                                                   \
    }

#define SEQUENCE(name_, ...) NEW_DOOR(name_)
#define COMPOSITE_LIST(name_, tag_, element_, ...)                                                 \
    NEW_DOOR(name_)                                                                                \
    COMPOSITE_CHILD_DOORS(name_, element_)
#define PRIMITIVE_SLOT(owner_, child_, ...)                                                        \
    uint32_t TarnAppend##child_##To##owner_##Ie(Tarn##owner_##Ie *ie, const Tarn##child_ *value) { \
        return append(head_of(ie), value, asBuilt<type##child_>);                                  \
    }                                                                                              \
    uint32_t TarnExtract##child_##From##owner_##Ie(Tarn##owner_##Ie *ie, Tarn##child_ *value) {    \
        return extract(head_of(ie), value, asBuilt<type##child_>, __LINE__);                       \
    }
#define COMPOSITE_SLOT(owner_, child_, ...) COMPOSITE_CHILD_DOORS(owner_, child_)
#include "catalogue/composite_ies.def"
