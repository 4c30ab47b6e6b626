// The same four messages through well-known codecs of generic messages, each as it is fastest:
// nanopb, with arrays inside its structures; protobuf-c, with an allocation for each structure that
// it decodes; protobuf, with messages on an arena that are kept; flatbuffers, with a builder that
// is kept and a verifier; Cap'n Proto, with a segment that is kept. Values come from the library's
// records and go back to them, as on the library's own roads. Encoders return the bytes written,
// decoders 1; both return 0 on failure.
#ifndef TARN_BENCH_PEERS_H
#define TARN_BENCH_PEERS_H

#include "tarn_if.h"

namespace bench {

#define TARN_PEER(peer_, message_)                                                                 \
    uint32_t peer_##_encode_##message_(uint8_t *buffer, uint32_t size,                             \
                                       const Tarn##message_##Record *record);                      \
    uint32_t peer_##_decode_##message_(const uint8_t *buffer, uint32_t length,                     \
                                       Tarn##message_##Record *record);
#define TARN_PEERS(message_)                                                                       \
    TARN_PEER(nanopb, message_)                                                                    \
    TARN_PEER(protobuf_c, message_)                                                                \
    TARN_PEER(protobuf, message_)                                                                  \
    TARN_PEER(flatbuffers, message_)                                                               \
    TARN_PEER(capnp, message_)
TARN_PEERS(SecurityModeReject)
TARN_PEERS(AccessControlRequest)
TARN_PEERS(UlDirectTransfer)
TARN_PEERS(RabAssignmentRequest)
#undef TARN_PEERS
#undef TARN_PEER

} // namespace bench

#endif
