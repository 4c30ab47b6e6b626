#include "messages.h"

#include <stddef.h>

uint32_t finish_msg(TarnMsg *msg, uint32_t ok, uint32_t (*isValid)(const TarnMsg *msg),
                    PackMsg pack, uint8_t *buffer, uint32_t size) {
    const uint32_t length = (uint32_t)TarnSizeOfMsg(msg);
    /* A message that does not fit is a fatal error, so its size is compared first. */
    const bool isPacked = ok && isValid(msg) && length <= size && pack(msg, buffer, size);
    TarnDeleteMsg(msg);
    return isPacked ? length : 0;
}

bool is_ue(const UeIds *ue, TarnSrnti srnti, TarnAcUeId acUeId) {
    return ue->srnti == srnti && ue->acUeId == acUeId;
}

const char *domain_name(TarnCnDomainId domain) {
    return domain == csDomain ? "CS" : domain == psDomain ? "PS" : "unknown domain";
}

ImsiText imsi_text(const TarnImsi *imsi) {
    ImsiText text = {""};
    for (size_t i = 0; i + 1 < sizeof text.digits; ++i) {
        const uint8_t byte = imsi->bytes[i];
        text.digits[i] = byte >= '0' && byte <= '9' ? (char)byte : '?';
    }
    return text;
}
