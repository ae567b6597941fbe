#include "remote/RemoteKind.h"

namespace tavrik {

std::string_view nameOf(RemoteKind kind) {
    return kind == RemoteKind::texts ? "texts" : "updates";
}

} // namespace tavrik
