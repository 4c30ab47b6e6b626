#include "procedures.h"

/* A call for an idle UE, data beside it, a move to another cell, and the end of both. The AP is
 * both ends of the relocation: it serves the source cell and the target cell. */
const Procedure procedures[] = {
    {"Paging of an idle UE", csDomain, {&idleModePaging}},
    {"UE context set-up", csDomain, {&ueContextRequest, &ueContextAccept}},
    {"Access control", csDomain, {&accessControlRequest, &accessControlResponse}},
    {"Paging response", csDomain, {&initDirectTransfer}},
    {"Security mode control", csDomain, {&securityModeCommand, &securityModeComplete}},
    {"RAB assignment, speech",
     csDomain,
     {&rabAssignmentRequest, &userPlaneConfigRequest, &userPlaneConfigResponse,
      &rabAssignmentResponse}},
    {"Call set-up", csDomain, {&dlDirectTransfer, &ulDirectTransfer}},
    {"Paging during the call", psDomain, {&connectedModePaging, &initDirectTransfer}},
    {"RAB assignment, data",
     psDomain,
     {&rabAssignmentRequest, &userPlaneConfigRequest, &userPlaneConfigResponse,
      &rabAssignmentResponse}},
    {"Relocation to another cell",
     csDomain,
     {&relocationRequired, &handoverRequest, &handoverReqAck, &relocationCommand, &handoverDetect,
      &handoverComplete}},
    {"Iu release at the source, CS", csDomain, {&iuReleaseCommand, &iuReleaseComplete}},
    {"Iu release at the source, PS", psDomain, {&iuReleaseCommand, &iuReleaseComplete}},
    {"UE context release, source", csDomain, {&ueContextRelease}},
    {"Iu release, CS", csDomain, {&iuReleaseRequest, &iuReleaseCommand, &iuReleaseComplete}},
    {"Iu release, PS", psDomain, {&iuReleaseCommand, &iuReleaseComplete}},
    {"UE context release", csDomain, {&ueContextRelease}},
};

const size_t procedureCount = sizeof procedures / sizeof procedures[0];
