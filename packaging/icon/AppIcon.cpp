#include "packaging/icon/AppIcon.h"

#include "platform/Png.h"
#include "practice/art/ProgramIcon.h"

#include <string_view>

namespace tavrik {

namespace {

struct Element {
    std::string_view type;
    int pixels;
    int points;
};

constexpr Element kElements[] = {
    {"icp4", 16, 16},   {"ic11", 32, 16},   {"icp5", 32, 32},   {"ic12", 64, 32},   {"ic07", 128, 128},
    {"ic13", 256, 128}, {"ic08", 256, 256}, {"ic14", 512, 256}, {"ic09", 512, 512}, {"ic10", 1024, 512},
};

void append(Bytes& bytes, std::string_view type, std::size_t length) {
    bytes.insert(bytes.end(), type.begin(), type.end());
    for (int shift = 24; shift >= 0; shift -= 8)
        bytes.push_back(static_cast<std::uint8_t>(length >> shift));
}

} // namespace

Bytes appIcon() {
    constexpr std::size_t kHeader = 8; // type and length
    Bytes elements;
    for (const Element& element : kElements) {
        const Result<Bytes> png = png::encode(practice::drawProgramIcon(element.pixels, element.points));
        if (!png)
            return {};
        append(elements, element.type, png->size() + kHeader);
        elements.insert(elements.end(), png->begin(), png->end());
    }
    Bytes icon;
    append(icon, "icns", elements.size() + kHeader);
    icon.insert(icon.end(), elements.begin(), elements.end());
    return icon;
}

} // namespace tavrik
