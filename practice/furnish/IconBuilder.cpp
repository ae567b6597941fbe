#include "practice/furnish/IconBuilder.h"

#include <QBuffer>
#include <QImageWriter>

#include <algorithm>
#include <atomic>
#include <thread>

namespace tavrik::practice {

namespace {

struct Element {
    int size;
    const char* type;
};

constexpr Element kElements[] = {
    {16, "icp4"}, {32, "icp5"}, {64, "ic12"}, {128, "ic07"}, {256, "ic08"}, {512, "ic09"}, {1024, "ic10"},
};

void appendNumber(Bytes& bytes, std::size_t number) {
    for (int shift = 24; shift >= 0; shift -= 8)
        bytes.push_back(static_cast<std::uint8_t>(number >> shift));
}

void appendType(Bytes& bytes, const char* type) {
    bytes.insert(bytes.end(), type, type + 4);
}

/// Encoded for speed; empty on failure.
Bytes encodePng(const QImage& picture) {
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QImageWriter writer(&buffer, "png");
    writer.setCompression(12); // one of zlib's fastest levels: a third larger, several times faster
    if (!writer.write(picture))
        return {};
    const QByteArray& data = buffer.data();
    return {data.begin(), data.end()};
}

Bytes buildIcon(const IconPainter& painter, int largest) {
    constexpr std::size_t kHeader = 8; // type and length
    Bytes elements;
    for (const Element& element : kElements) {
        if (element.size > largest)
            break;
        const Bytes png = encodePng(painter(element.size));
        if (png.empty())
            return {};
        appendType(elements, element.type);
        appendNumber(elements, png.size() + kHeader);
        elements.insert(elements.end(), png.begin(), png.end());
    }
    Bytes container;
    container.reserve(elements.size() + kHeader);
    appendType(container, "icns");
    appendNumber(container, elements.size() + kHeader);
    container.insert(container.end(), elements.begin(), elements.end());
    return container;
}

} // namespace

std::vector<Bytes> buildIcons(const std::vector<IconPainter>& painters, int largest) {
    std::vector<Bytes> icons(painters.size());
    std::atomic<std::size_t> next = 0;
    const auto work = [&] {
        for (std::size_t index = next++; index < painters.size(); index = next++)
            icons[index] = buildIcon(painters[index], largest);
    };
    std::vector<std::thread> helpers;
    for (unsigned count = std::clamp(std::thread::hardware_concurrency(), 1u, 8u); count > 1; --count)
        helpers.emplace_back(work);
    work();
    for (std::thread& helper : helpers)
        helper.join();
    return icons;
}

} // namespace tavrik::practice
