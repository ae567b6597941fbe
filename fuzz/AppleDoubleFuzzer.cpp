#include "platform/practice/AppleDouble.h"
#include "platform/practice/ResourceFork.h"

#include <cstdlib>

using namespace tavrik;

/// What is read from a companion is written and read again without a change; so are the resources of its fork.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const ByteView input(data, size);
    const auto content = practice::decodeAppleDouble(input);
    if (content) {
        const auto again = practice::decodeAppleDouble(practice::encodeAppleDouble(*content));
        if (!again || *again != *content)
            std::abort();
    }
    const auto resources = practice::parseResourceFork(content ? ByteView(content->resourceFork) : input);
    if (!resources)
        return 0;
    if (const auto fork = practice::encodeResourceFork(*resources)) {
        const auto again = practice::parseResourceFork(*fork);
        if (!again || again->size() != resources->size())
            std::abort();
    }
    return 0;
}
