/* One message, from values to bytes and back. */
#include <stdio.h>

#include "tarn_if.h"

int main(void) {
    /* Send: a new message, its IEs in order, the bytes. */
    const TarnSrnti srnti = 0x12001;
    const TarnAcUeId acUeId = 7001;
    const TarnCnDomainId domain = 1;
    const TarnSecRejCause cause = 6;
    TarnMsg *sent = TarnNewSecurityModeRejectMsg();
    TarnAppendSrntiToSecurityModeRejectMsg(sent, &srnti);
    TarnAppendAcUeIdToSecurityModeRejectMsg(sent, &acUeId);
    TarnAppendCnDomainIdToSecurityModeRejectMsg(sent, &domain);
    TarnAppendSecRejCauseToSecurityModeRejectMsg(sent, &cause);
    uint8_t buffer[43];
    const uint32_t length = (uint32_t)TarnSizeOfMsg(sent);
    if (!TarnIsSecurityModeRejectMsgValid(sent) || length > sizeof buffer ||
        !TarnPackSecurityModeRejectMsg(sent, buffer, sizeof buffer))
        return 1;
    TarnDeleteMsg(sent);

    /* Receive: whatever message the bytes hold, then the values that are wanted. */
    TarnMsg *received;
    TarnAcUeId ue;
    TarnSecRejCause why;
    if (!TarnUnpackNewMsg(buffer, length, &received) ||
        received->messageId != TarnSecurityModeRejectMsgId ||
        !TarnExtractAcUeIdFromSecurityModeRejectMsg(received, &ue) ||
        !TarnExtractSecRejCauseFromSecurityModeRejectMsg(received, &why))
        return 1;
    TarnDeleteMsg(received);
    printf("%u bytes: UE %u rejects security mode, cause %u\n", length, ue, why);
    return 0;
}
