#include "platform/PropertyList.h"

#include <cstdlib>

using namespace tavrik::plist;

/// What was read can be written, and reading that and writing it again changes nothing.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto read = parse({data, size}, {.bytes = 1u << 20, .depth = 100, .values = 10'000});
    if (!read)
        return 0;
    const auto written = serialize(*read, Format::binary);
    const auto again = written ? parse(*written) : written.error();
    if (!again || *serialize(*again, Format::binary) != *written)
        std::abort();
    // Not all that binary holds fits into XML; what fits can be read, UIDs as one level more.
    if (const auto xml = serialize(*read, Format::xml); xml && !parse(*xml))
        std::abort();
    return 0;
}
