// One message, from values to bytes and back.
#include <cstdio>

#include "tarn.hpp"

int main() {
    // Send: a record, the bytes.
    const tarn::SecurityModeReject reject{
        .Srnti = 0x12001, .AcUeId = 7001, .CnDomainId = 1, .SecRejCause = 6};
    const auto bytes = tarn::build(reject);
    if (!bytes) {
        std::printf("not sent: %s\n", bytes.error().what());
        return 1;
    }

    // Receive: whatever message the bytes hold.
    const auto error = tarn::visit(
        *bytes, tarn::overloaded{
                    [&](const tarn::SecurityModeReject &received) {
                        std::printf("%zu bytes: UE %u rejects security mode, cause %u\n",
                                    bytes->size(), received.AcUeId, received.SecRejCause);
                    },
                    [](const tarn::Other &other) { std::printf("a %s\n", other.name); },
                });
    return error.status() == tarn::Status::ok ? 0 : 1;
}
