#include "platform/PropertyListBinary.h"

#include "platform/Utf8.h"

#include <algorithm>
#include <bit>
#include <map>
#include <optional>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <variant>

namespace tavrik::plist {

namespace {

/// The bytes that a number takes: 1, 2, 4 or 8.
std::size_t sizeOf(std::uint64_t number) {
    return number <= 0xFF ? 1 : number <= 0xFFFF ? 2 : number <= 0xFFFF'FFFF ? 4 : 8;
}

template<typename Container>
void appendBigEndian(Container& bytes, std::uint64_t number, std::size_t size) {
    while (size-- > 0)
        bytes.push_back(static_cast<typename Container::value_type>(number >> (8 * size)));
}

std::string number(int kind, std::uint64_t value, std::size_t size) {
    std::string object(1, static_cast<char>(kind | std::countr_zero(size)));
    appendBigEndian(object, value, size);
    return object;
}

/// The beginning of an object that holds `count` elements.
std::string counted(int kind, std::size_t count) {
    if (count < 0xF)
        return std::string(1, static_cast<char>(kind | static_cast<int>(count)));
    return std::string(1, static_cast<char>(kind | 0xF)) + number(0x10, count, sizeOf(count));
}

/// Nothing for text that is not UTF-8 or holds NUL, which readers take for the end.
std::optional<std::string> encoded(std::string_view text) {
    std::string units;
    bool isASCII = true;
    for (std::string_view rest = text; !rest.empty();) {
        const auto point = takeCodePoint(rest);
        if (!point || *point == 0)
            return std::nullopt;
        isASCII = isASCII && *point < 0x80;
        if (*point > 0xFFFF)
            appendBigEndian(units, 0xD7C0 + (*point >> 10), 2);
        appendBigEndian(units, *point > 0xFFFF ? 0xDC00 | (*point & 0x3FF) : *point, 2);
    }
    return isASCII ? counted(0x50, text.size()) + std::string(text) : counted(0x60, units.size() / 2) + units;
}

std::optional<std::string> encoded(Date date) {
    return number(0x30, std::bit_cast<std::uint64_t>(date.sinceReference), 8);
}

std::optional<std::string> encoded(bool flag) {
    return std::string(1, flag ? '\x09' : '\x08');
}

std::optional<std::string> encoded(std::int64_t value) {
    const auto bits = static_cast<std::uint64_t>(value); // only eight bytes are read as signed
    return number(0x10, bits, sizeOf(bits));
}

std::optional<std::string> encoded(std::uint64_t value) {
    std::string object(1, '\x14');
    appendBigEndian(object, 0, 8);
    appendBigEndian(object, value, 8);
    return object;
}

std::optional<std::string> encoded(double value) {
    return number(0x20, std::bit_cast<std::uint64_t>(value), 8);
}

std::optional<std::string> encoded(UID uid) {
    if (uid.number > 0xFFFF'FFFF)
        return std::nullopt;
    const std::size_t size = sizeOf(uid.number);
    std::string object(1, static_cast<char>(0x80 | (size - 1)));
    appendBigEndian(object, uid.number, size);
    return object;
}

/// Data may be large: that of different sizes is never looked at.
struct BySizeThenContent {
    bool operator()(ByteView first, ByteView second) const {
        return first.size() != second.size() ? first.size() < second.size()
                                             : std::ranges::lexicographical_compare(first, second);
    }
};

/// Numbers the objects, equal ones but containers once, then writes them. The value must outlive it: data is
/// not copied before it is written.
class Writer {
public:
    /// The number of the value's object; nothing when the format cannot hold it or something in it.
    std::optional<std::size_t> add(const Value& value) {
        return std::visit([this](const auto& content) { return addContent(content); }, value.content());
    }

    Bytes bytes(std::size_t room) const {
        const std::size_t referenceSize = sizeOf(m_objects.size());
        const std::string_view magic = "bplist00";
        constexpr std::size_t kTrailerSize = 32;
        std::size_t size = magic.size() + m_objects.size() * 8 + kTrailerSize;
        for (const Object& object : m_objects)
            size += object.start.size() + object.data.size() + object.references.size() * referenceSize;
        Bytes list;
        list.reserve(size + room);
        list.insert(list.end(), magic.begin(), magic.end());
        std::vector<std::size_t> offsets;
        offsets.reserve(m_objects.size());
        for (const Object& object : m_objects) {
            offsets.push_back(list.size());
            list.insert(list.end(), object.start.begin(), object.start.end());
            list.insert(list.end(), object.data.begin(), object.data.end());
            for (const std::size_t reference : object.references)
                appendBigEndian(list, reference, referenceSize);
        }
        const std::size_t table = list.size();
        const std::size_t offsetSize = sizeOf(table);
        for (const std::size_t offset : offsets)
            appendBigEndian(list, offset, offsetSize);
        appendBigEndian(list, offsetSize << 8 | referenceSize, 8); // after six bytes of zeros
        appendBigEndian(list, m_objects.size(), 8);
        appendBigEndian(list, 0, 8); // the root is the first
        appendBigEndian(list, table, 8);
        return list;
    }

private:
    struct Object {
        std::string_view start; ///< all of it, but for data and a container's references
        ByteView data;
        std::vector<std::size_t> references;
    };

    template<typename Scalar>
    std::optional<std::size_t> addContent(const Scalar& scalar) {
        std::optional<std::string> object = encoded(scalar);
        if (!object)
            return std::nullopt;
        const auto [entry, isNew] = m_numbers.try_emplace(std::move(*object), m_objects.size());
        if (isNew)
            m_objects.push_back({entry->first, {}, {}});
        return entry->second;
    }

    std::optional<std::size_t> addContent(const Bytes& data) {
        const auto [entry, isNew] = m_dataNumbers.try_emplace(data, m_objects.size());
        if (isNew)
            addObject(counted(0x40, data.size()), data);
        return entry->second;
    }

    std::optional<std::size_t> addContent(const Array& array) {
        const std::size_t number = addObject(counted(0xA0, array.size()));
        std::vector<std::size_t> items;
        items.reserve(array.size());
        for (const Value& value : array) {
            const auto item = add(value);
            if (!item)
                return std::nullopt;
            items.push_back(*item);
        }
        m_objects[number].references = std::move(items);
        return number;
    }

    std::optional<std::size_t> addContent(const Dictionary& dictionary) {
        const std::size_t number = addObject(counted(0xD0, dictionary.size()));
        std::vector<std::size_t> keysAndValues(2 * dictionary.size());
        std::size_t next = 0;
        for (const auto& [key, value] : dictionary) {
            const auto keyNumber = addContent(key);
            const auto valueNumber = keyNumber ? add(value) : std::nullopt;
            if (!valueNumber)
                return std::nullopt;
            keysAndValues[next] = *keyNumber;
            keysAndValues[dictionary.size() + next++] = *valueNumber;
        }
        m_objects[number].references = std::move(keysAndValues);
        return number;
    }

    std::size_t addObject(std::string start, ByteView data = {}) {
        m_objects.push_back({*m_starts.insert(std::move(start)).first, data, {}});
        return m_objects.size() - 1;
    }

    std::vector<Object> m_objects;
    std::unordered_map<std::string, std::size_t> m_numbers; ///< of each object but data and containers
    std::map<ByteView, std::size_t, BySizeThenContent> m_dataNumbers;
    std::unordered_set<std::string> m_starts; ///< of data and containers
};

} // namespace

Result<Bytes> toBinary(const Value& value, std::size_t room) {
    Writer writer;
    if (!writer.add(value))
        return Error{"The property list holds a text that is not UTF-8 or holds NUL, or a UID above 32 bits"};
    return writer.bytes(room);
}

} // namespace tavrik::plist
