#include "platform/PropertyListGuard.h"

#include <algorithm>
#include <cstdint>
#include <optional>
#include <string>

namespace tavrik::plist {

namespace {

Error refusal(const char* reason) {
    return Error{std::string("The property list ") + reason};
}

std::uint64_t bigEndian(ByteView bytes) {
    std::uint64_t value = 0;
    for (const std::uint8_t byte : bytes)
        value = value << 8 | byte;
    return value;
}

/// The objects of a binary list and what unfolding them has cost so far.
class BinaryWalk {
public:
    BinaryWalk(ByteView data, const Limits& limits) : m_limits(limits) {
        constexpr std::size_t headerSize = 8;
        constexpr std::size_t trailerSize = 32;
        if (data.size() < headerSize + trailerSize)
            return;
        const ByteView trailer = data.last(trailerSize);
        m_offsetSize = trailer[6];
        m_referenceSize = trailer[7];
        const std::uint64_t count = bigEndian(trailer.subspan(8, 8));
        m_root = bigEndian(trailer.subspan(16, 8));
        const std::uint64_t table = bigEndian(trailer.subspan(24, 8));
        if (m_offsetSize < 1 || m_offsetSize > 8 || m_referenceSize < 1 || m_referenceSize > 8)
            return;
        if (table < headerSize || table > data.size() - trailerSize ||
            count > (data.size() - trailerSize - table) / m_offsetSize)
            return;
        m_objects = data.first(table);
        m_offsets = data.subspan(table, count * m_offsetSize);
    }

    Status checkAll() { return check(m_root, 1); }

private:
    struct Object {
        int kind = 0;
        bool isContainer = false;
        ByteView payload;
    };

    /// One object and all below it.
    Status check(std::uint64_t index, std::size_t depth) {
        const std::optional<Object> object = at(index);
        if (!object)
            return refusal("is damaged");
        if (!takeIn(1, *object))
            return refusal("is too large");
        if (object->isContainer && depth > m_limits.depth)
            return refusal("is nested too deeply");
        if (!object->isContainer)
            return Done{};
        return checkChildren(*object, depth);
    }

    /// False once it is too much.
    bool takeIn(std::size_t values, const Object& object) {
        m_values += values;
        m_bytes += object.payload.size();
        return m_values <= m_limits.values && m_bytes <= m_limits.bytes;
    }

    Status checkChildren(const Object& container, std::size_t depth) {
        const std::size_t count = container.payload.size() / m_referenceSize;
        const std::size_t keys = container.kind == 0xD ? count / 2 : 0;
        for (std::size_t i = 0; i < count; ++i) {
            const std::uint64_t index =
                bigEndian(container.payload.subspan(i * m_referenceSize, m_referenceSize));
            if (i < keys) {
                const std::optional<Object> key = at(index);
                if (!key || (key->kind != 0x5 && key->kind != 0x6))
                    return refusal("is damaged");
                if (!takeIn(0, *key))
                    return refusal("is too large");
            } else if (Status status = check(index, depth + 1); !status) {
                return status;
            }
        }
        return Done{};
    }

    /// The object when it lies inside the file and libplist keeps all of its content.
    std::optional<Object> at(std::uint64_t index) const {
        if (index >= m_offsets.size() / std::max<std::size_t>(m_offsetSize, 1))
            return std::nullopt;
        const std::uint64_t offset = bigEndian(m_offsets.subspan(index * m_offsetSize, m_offsetSize));
        if (offset >= m_objects.size())
            return std::nullopt;
        ByteView rest = m_objects.subspan(offset);
        const int kind = rest[0] >> 4;
        std::uint64_t count = rest[0] & 0xF;
        rest = rest.subspan(1);
        const bool isCounted = kind >= 0x4 && kind != 0x8;
        if (isCounted && count == 0xF) {
            if (rest.empty() || rest[0] < 0x10 || rest[0] > 0x13)
                return std::nullopt;
            const std::size_t size = std::size_t{1} << (rest[0] & 0xF);
            if (rest.size() < 1 + size)
                return std::nullopt;
            count = bigEndian(rest.subspan(1, size));
            rest = rest.subspan(1 + size);
        }
        const std::optional<std::size_t> unit = unitOf(kind, count);
        if (!unit)
            return std::nullopt;
        if (!isCounted)
            count = 1;
        if (*unit != 0 && count > rest.size() / *unit)
            return std::nullopt;
        const Object object{kind, kind == 0xA || kind == 0xD, rest.first(count * *unit)};
        return losesContent(object) ? std::nullopt : std::optional(object);
    }

    /// Bytes for one element of a counted object, for all of another one; nothing for an unknown object.
    std::optional<std::size_t> unitOf(int kind, std::uint64_t count) const {
        switch (kind) {
        case 0x0:
            return count == 0x8 || count == 0x9 ? std::optional<std::size_t>(0) : std::nullopt;
        case 0x1:
            return count <= 4 ? std::optional(std::size_t{1} << count) : std::nullopt;
        case 0x2:
            return count == 2 || count == 3 ? std::optional(std::size_t{1} << count) : std::nullopt;
        case 0x3:
            return count == 3 ? std::optional<std::size_t>(8) : std::nullopt;
        case 0x4:
        case 0x5:
            return 1;
        case 0x6:
            return 2;
        case 0x8:
            return count < 8 ? std::optional<std::size_t>(count + 1) : std::nullopt;
        case 0xA:
            return m_referenceSize;
        case 0xD:
            return 2 * m_referenceSize;
        default:
            return std::nullopt;
        }
    }

    /// libplist cuts integers to 64 bits, ends ASCII at a NUL, and leaves out halves of surrogate pairs.
    static bool losesContent(const Object& object) {
        const ByteView payload = object.payload;
        if (object.kind == 0x1)
            return payload.size() == 16 && bigEndian(payload.first(8)) != 0;
        if (object.kind == 0x5)
            return std::ranges::find(payload, 0) != payload.end();
        if (object.kind != 0x6)
            return false;
        bool afterLead = false;
        for (std::size_t i = 0; i < payload.size(); i += 2) {
            const std::uint64_t unit = bigEndian(payload.subspan(i, 2));
            const bool isTrail = unit >= 0xDC00 && unit <= 0xDFFF;
            if (unit == 0 || isTrail != afterLead)
                return true;
            afterLead = unit >= 0xD800 && unit <= 0xDBFF;
        }
        return afterLead;
    }

    const Limits& m_limits;
    ByteView m_objects; ///< with the header, as offsets count from there
    ByteView m_offsets;
    std::size_t m_offsetSize = 0;
    std::size_t m_referenceSize = 0;
    std::uint64_t m_root = 0;
    std::size_t m_values = 0;
    std::size_t m_bytes = 0;
};

/// Takes off the text up to and including `end`, and hands out what stood before it.
std::optional<std::string_view> takeUntil(std::string_view& text, std::string_view end) {
    const auto found = text.find(end);
    if (found == std::string_view::npos)
        return std::nullopt;
    const std::string_view before = text.substr(0, found);
    text.remove_prefix(found + end.size());
    return before;
}

} // namespace

Status checkBinary(ByteView data, const Limits& limits) {
    return BinaryWalk(data, limits).checkAll();
}

Status checkXML(std::string_view text, const Limits& limits) {
    if (text.find('\0') != std::string_view::npos)
        return refusal("is no text");
    std::size_t depth = 0;
    std::size_t values = 0;
    std::size_t roots = 0;
    std::string_view tag;
    while (const auto before = takeUntil(text, "<")) {
        // libplist moves the rest of a text once for each of its entities.
        constexpr std::size_t mostMoved = std::size_t{1} << 34;
        const auto entities = static_cast<std::size_t>(std::ranges::count(*before, '&'));
        if (entities != 0 && before->size() > mostMoved / entities)
            return refusal("holds too many entities");
        if (text.starts_with("!--") || text.starts_with("![CDATA[")) {
            const bool isComment = text[1] == '-';
            text.remove_prefix(isComment ? 3 : 8);
            if (!takeUntil(text, isComment ? "-->" : "]]>"))
                return refusal("is cut short");
            continue;
        }
        const auto inside = takeUntil(text, ">");
        if (!inside || inside->find('<') != std::string_view::npos ||
            std::ranges::count(*inside, '"') % 2 != 0 ||
            (inside->starts_with('!') && inside->find('[') != std::string_view::npos))
            return refusal("has damaged markup");
        tag = *inside;
        if (tag == "/dict" || tag == "/array") {
            if (depth-- == 0)
                return refusal("has damaged markup");
            continue;
        }
        if (tag.empty() || tag[0] == '/' || tag[0] == '?' || tag[0] == '!' || tag.starts_with("plist") ||
            tag.starts_with("key"))
            continue;
        roots += depth == 0;
        if (++values > limits.values)
            return refusal("is too large");
        if (tag.starts_with("dict") || tag.starts_with("array")) {
            if (depth == limits.depth)
                return refusal("is nested too deeply");
            depth += tag.back() != '/';
        }
    }
    if (tag != "/plist" || roots != 1)
        return refusal("is cut short or damaged");
    return Done{};
}

} // namespace tavrik::plist
