#include "platform/Icns.h"

#include <cstdlib>

using namespace tavrik;

/// What is offered decodes, within the largest size, or does not.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    for (const icns::Representation& offered : icns::representations({data, size})) {
        const QImage image = icns::decode({data, size}, offered);
        if (image.width() > 1024 || image.height() > 1024)
            std::abort();
    }
    return 0;
}
