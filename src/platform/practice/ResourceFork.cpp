#include "platform/practice/ResourceFork.h"

#include "platform/ByteOrder.h"

#include <algorithm>

namespace tavrik::practice {

namespace {

constexpr std::size_t kHeaderSize = 16; ///< data offset, map offset, data length, map length
constexpr std::size_t kDataOffset = 256;
constexpr std::size_t kTypeListOffset = 28; ///< from the map's start
constexpr std::size_t kTypeSize = 8;        ///< type, number of resources less 1, offset of their list
constexpr std::size_t kReferenceSize = 12;  ///< id, name, attributes and data offset, handle
constexpr std::uint16_t kNoName = 0xFFFF;
constexpr std::size_t kLargestDataOffset = 0xFFFFFF;
constexpr std::size_t kLargestMapOffset = 0x7FFF;

Error damaged() {
    return Error{"The resource fork is damaged."};
}

/// A count that is stored less 1, so that 0xFFFF means none.
std::size_t storedCount(std::uint16_t stored) {
    return static_cast<std::uint16_t>(stored + 1);
}

/// A part of the fork that begins with its own length.
std::optional<ByteView> dataAt(ByteView area, std::size_t offset) {
    if (!fits(area.size(), offset, 4))
        return std::nullopt;
    const auto length = readBig<std::uint32_t>(area, offset);
    if (!fits(area.size(), offset + 4, length))
        return std::nullopt;
    return area.subspan(offset + 4, length);
}

std::optional<std::string> nameAt(ByteView map, std::size_t offset) {
    if (!fits(map.size(), offset, 1) || !fits(map.size(), offset + 1, map[offset]))
        return std::nullopt;
    return std::string(textOf(map.subspan(offset + 1, map[offset])));
}

std::optional<Resource> readReference(ByteView data, ByteView map, std::size_t offset, std::uint32_t type) {
    Resource resource;
    resource.type = type;
    resource.id = static_cast<std::int16_t>(readBig<std::uint16_t>(map, offset));
    const auto place = readBig<std::uint32_t>(map, offset + 4);
    resource.attributes = static_cast<std::uint8_t>(place >> 24);

    const auto content = dataAt(data, place & kLargestDataOffset);
    if (!content)
        return std::nullopt;
    resource.data = *content;

    if (const auto nameOffset = readBig<std::uint16_t>(map, offset + 2); nameOffset != kNoName) {
        resource.name = nameAt(map, std::size_t{readBig<std::uint16_t>(map, 26)} + nameOffset);
        if (!resource.name)
            return std::nullopt;
    }
    return resource;
}

std::vector<std::uint32_t> typesOf(std::span<const Resource> resources) {
    std::vector<std::uint32_t> types;
    for (const Resource& resource : resources) {
        if (std::ranges::find(types, resource.type) == types.end())
            types.push_back(resource.type);
    }
    return types;
}

} // namespace

Result<std::vector<Resource>> parseResourceFork(ByteView fork) {
    if (fork.size() < kHeaderSize)
        return damaged();
    const auto dataOffset = readBig<std::uint32_t>(fork, 0);
    const auto mapOffset = readBig<std::uint32_t>(fork, 4);
    const auto dataLength = readBig<std::uint32_t>(fork, 8);
    const auto mapLength = readBig<std::uint32_t>(fork, 12);
    if (!fits(fork.size(), dataOffset, dataLength) || !fits(fork.size(), mapOffset, mapLength))
        return damaged();
    const ByteView data = fork.subspan(dataOffset, dataLength);
    const ByteView map = fork.subspan(mapOffset, mapLength);

    if (map.size() < kTypeListOffset + 2)
        return damaged();
    const std::size_t types = readBig<std::uint16_t>(map, 24);
    if (!fits(map.size(), types, 2))
        return damaged();
    const std::size_t typeCount = storedCount(readBig<std::uint16_t>(map, types));
    if (!fits(map.size(), types + 2, typeCount * kTypeSize))
        return damaged();

    // Lists that share their bytes would let a small map unfold into billions of resources.
    const std::size_t most = map.size() / kReferenceSize;
    std::vector<Resource> resources;
    for (std::size_t entry = types + 2; entry < types + 2 + typeCount * kTypeSize; entry += kTypeSize) {
        const auto type = readBig<std::uint32_t>(map, entry);
        const std::size_t count = storedCount(readBig<std::uint16_t>(map, entry + 4));
        const std::size_t list = types + readBig<std::uint16_t>(map, entry + 6);
        if (!fits(map.size(), list, count * kReferenceSize) || resources.size() + count > most)
            return damaged();
        for (std::size_t i = 0; i < count; ++i) {
            auto resource = readReference(data, map, list + i * kReferenceSize, type);
            if (!resource)
                return damaged();
            resources.push_back(std::move(*resource));
        }
    }
    return resources;
}

Result<Bytes> encodeResourceFork(std::span<const Resource> resources) {
    const std::vector<std::uint32_t> types = typesOf(resources);
    Bytes data;
    Bytes typeList;
    Bytes references;
    Bytes names;
    appendBig(typeList, static_cast<std::uint16_t>(types.size() - 1));

    for (const std::uint32_t type : types) {
        const std::size_t list = 2 + types.size() * kTypeSize + references.size();
        std::size_t count = 0;
        for (const Resource& resource : resources) {
            if (resource.type != type)
                continue;
            if (data.size() > kLargestDataOffset || names.size() > kLargestMapOffset ||
                (resource.name && resource.name->size() > 255))
                return Error{"The resources do not fit a resource fork."};
            ++count;
            appendBig(references, static_cast<std::uint16_t>(resource.id));
            appendBig(references, resource.name ? static_cast<std::uint16_t>(names.size()) : kNoName);
            appendBig(references,
                      std::uint32_t{resource.attributes} << 24 | static_cast<std::uint32_t>(data.size()));
            appendBig(references, std::uint32_t{0});
            appendBig(data, static_cast<std::uint32_t>(resource.data.size()));
            append(data, resource.data);
            if (resource.name) {
                names.push_back(static_cast<std::uint8_t>(resource.name->size()));
                append(names, bytesOf(*resource.name));
            }
        }
        if (list > kLargestMapOffset || references.size() > kLargestMapOffset)
            return Error{"The resources do not fit a resource fork."};
        appendBig(typeList, type);
        appendBig(typeList, static_cast<std::uint16_t>(count - 1));
        appendBig(typeList, static_cast<std::uint16_t>(list));
    }

    const std::size_t nameList = kTypeListOffset + typeList.size() + references.size();
    Bytes header;
    appendBig(header, static_cast<std::uint32_t>(kDataOffset));
    appendBig(header, static_cast<std::uint32_t>(kDataOffset + data.size()));
    appendBig(header, static_cast<std::uint32_t>(data.size()));
    appendBig(header, static_cast<std::uint32_t>(nameList + names.size()));

    Bytes fork = header;
    fork.reserve(kDataOffset + data.size() + nameList + names.size());
    fork.resize(kDataOffset);
    append(fork, data);
    append(fork, header);
    fork.resize(fork.size() + 8); // handle, file reference and attributes mean something in memory only
    appendBig(fork, static_cast<std::uint16_t>(kTypeListOffset));
    appendBig(fork, static_cast<std::uint16_t>(nameList));
    append(fork, typeList);
    append(fork, references);
    append(fork, names);
    return fork;
}

} // namespace tavrik::practice
