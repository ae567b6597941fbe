#include "platform/BookmarkPath.h"

#include <cstdlib>

using namespace tavrik;

/// Any bookmark gives an error or an absolute path without a component that leads elsewhere.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto path = pathInBookmark(ByteView(data, size));
    if (!path)
        return 0;
    const std::string text = path->string() == "/" ? "/" : path->string() + "/";
    for (const char* wrong : {"//", "/./", "/../"}) {
        if (!text.starts_with('/') || text.find(wrong) != text.npos || text.find('\0') != text.npos)
            std::abort();
    }
    return 0;
}
