#include "platform/PropertyList.h"

#include "platform/PropertyListBinary.h"
#include "platform/PropertyListGuard.h"
#include "platform/PropertyListXML.h"
#include "platform/Utf8.h"

#include <locale.h>
#include <plist/plist.h>

#include <algorithm>
#include <bit>
#include <clocale>
#include <cstdlib>
#include <limits>
#include <memory>
#include <optional>
#include <utility>
#if __has_include(<xlocale.h>)
#include <xlocale.h>
#endif

namespace tavrik::plist {

namespace {

constexpr std::string_view kBinaryMagic = "bplist00";

struct FreeNode {
    void operator()(plist_t node) const { plist_free(node); }
};

using Node = std::unique_ptr<void, FreeNode>;

struct FreeMemory {
    void operator()(void* memory) const { std::free(memory); }
};

/// libplist reads reals with the thread's decimal point.
class CLocale {
public:
    CLocale() : m_locale(newlocale(LC_NUMERIC_MASK, "C", nullptr)), m_before(uselocale(m_locale)) {}

    ~CLocale() {
        uselocale(m_before);
        freelocale(m_locale);
    }

    CLocale(const CLocale&) = delete;
    CLocale& operator=(const CLocale&) = delete;

private:
    locale_t m_locale;
    locale_t m_before;
};

/// The one object of a binary list with nothing else in it, marker first. It shows what libplist's getters
/// round or leave out: all bits of a date, and whether an integer is signed. Making one takes libplist long.
Bytes objectBytes(plist_t node) {
    char* data = nullptr;
    std::uint32_t size = 0;
    plist_to_bin(node, &data, &size);
    const std::unique_ptr<char, FreeMemory> owner(data);
    constexpr std::size_t rest = 1 + 32; // the offset table and the trailer
    const auto* begin = reinterpret_cast<const std::uint8_t*>(data);
    if (size <= kBinaryMagic.size() + rest)
        return {};
    return Bytes(begin + kBinaryMagic.size(), begin + size - rest);
}

std::uint64_t lastEightBytes(const Bytes& bytes) {
    std::uint64_t value = 0;
    for (std::size_t i = bytes.size() - std::min<std::size_t>(8, bytes.size()); i < bytes.size(); ++i)
        value = value << 8 | bytes[i];
    return value;
}

std::optional<Value> integerOf(plist_t node) {
    std::uint64_t number = 0;
    plist_get_uint_val(node, &number);
    if (number > std::numeric_limits<std::int64_t>::max()) {
        constexpr std::uint8_t eightBytes = 0x13; // signed, unlike sixteen
        if (const Bytes object = objectBytes(node); !object.empty() && object.front() == eightBytes)
            return Value(static_cast<std::int64_t>(number));
    }
    return Value(number);
}

// Newer versions of libplist would rather have moments since 1970, which older ones do not know.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wdeprecated-declarations"

/// A whole second within 32 bits; nothing for another date, which the getter rounds.
std::optional<Date> wholeSecondOf(plist_t node) {
    std::int32_t seconds = 0;
    std::int32_t microseconds = 0;
    plist_get_date_val(node, &seconds, &microseconds);
    const Node wholeSecond(plist_new_date(seconds, 0));
    return plist_compare_node_value(node, wholeSecond.get()) ? std::optional(Date{static_cast<double>(seconds)})
                                                             : std::nullopt;
}

#pragma GCC diagnostic pop

Date dateOf(plist_t node) {
    const auto wholeSecond = wholeSecondOf(node);
    return wholeSecond ? *wholeSecond : Date{std::bit_cast<double>(lastEightBytes(objectBytes(node)))};
}

std::optional<Value> valueOf(plist_t node, Format format);

std::optional<Value> arrayOf(plist_t node, Format format) {
    plist_array_iter position = nullptr;
    plist_array_new_iter(node, &position);
    const std::unique_ptr<void, FreeMemory> owner(position);
    Array array;
    array.reserve(plist_array_get_size(node));
    while (true) {
        plist_t item = nullptr;
        plist_array_next_item(node, position, &item);
        if (!item)
            return Value(std::move(array));
        auto value = valueOf(item, format);
        if (!value)
            return std::nullopt;
        array.push_back(std::move(*value));
    }
}

std::optional<Value> dictionaryOf(plist_t node, Format format) {
    plist_dict_iter position = nullptr;
    plist_dict_new_iter(node, &position);
    const std::unique_ptr<void, FreeMemory> owner(position);
    Dictionary dictionary;
    while (true) {
        char* keyText = nullptr;
        plist_t item = nullptr;
        plist_dict_next_item(node, position, &keyText, &item);
        const std::unique_ptr<char, FreeMemory> key(keyText);
        if (!item)
            break;
        if (!key || !isUtf8(key.get()))
            return std::nullopt;
        auto value = valueOf(item, format);
        if (!value)
            return std::nullopt;
        dictionary.insert_or_assign(key.get(), std::move(*value));
    }
    if (format == Format::xml && dictionary.size() == 1 && dictionary.begin()->first == "CF$UID") {
        const auto* number = dictionary.begin()->second.as<std::int64_t>();
        if (number && *number >= 0 && *number <= 0xFFFF'FFFF)
            return Value(UID{static_cast<std::uint64_t>(*number)});
    }
    return Value(std::move(dictionary));
}

/// The node and all below it; nothing when a text is not UTF-8. The guards have bounded the depth.
std::optional<Value> valueOf(plist_t node, Format format) {
    std::uint64_t size = 0;
    switch (plist_get_node_type(node)) {
    case PLIST_DICT:
        return dictionaryOf(node, format);
    case PLIST_ARRAY:
        return arrayOf(node, format);
    case PLIST_STRING: {
        const char* text = plist_get_string_ptr(node, &size);
        const std::string_view view(text ? text : "", text ? size : 0);
        return isUtf8(view) ? std::optional<Value>(view) : std::nullopt;
    }
    case PLIST_DATA: {
        const auto* data = reinterpret_cast<const std::uint8_t*>(plist_get_data_ptr(node, &size));
        return Value(data ? Bytes(data, data + size) : Bytes());
    }
    case PLIST_DATE:
        return Value(dateOf(node));
    case PLIST_BOOLEAN: {
        std::uint8_t flag = 0;
        plist_get_bool_val(node, &flag);
        return Value(flag != 0);
    }
    case PLIST_UINT:
        return integerOf(node);
    case PLIST_REAL: {
        double number = 0;
        plist_get_real_val(node, &number);
        return Value(number);
    }
    case PLIST_UID: {
        std::uint64_t number = 0;
        plist_get_uid_val(node, &number);
        return Value(UID{number});
    }
    default:
        return std::nullopt;
    }
}

/// Whether the value stays within the depth and the count, which are taken down on the way.
bool fits(const Value& value, std::size_t depth, std::size_t& values) {
    if (values == 0)
        return false;
    --values;
    if (const auto* array = value.as<Array>())
        return depth > 0 &&
               std::ranges::all_of(*array, [&](const Value& item) { return fits(item, depth - 1, values); });
    if (const auto* dictionary = value.as<Dictionary>())
        return depth > 0 && std::ranges::all_of(*dictionary, [&](const auto& entry) {
                   return fits(entry.second, depth - 1, values);
               });
    return true;
}

} // namespace

Result<Value> parse(ByteView data, const Limits& limits) {
    // libplist counts bytes in 32 bits.
    if (data.size() > std::min<std::size_t>(limits.bytes, std::numeric_limits<std::uint32_t>::max()))
        return Error{"The property list is too large"};
    const Format format = textOf(data).starts_with(kBinaryMagic) ? Format::binary : Format::xml;
    if (format == Format::xml && textOf(data).starts_with("\xEF\xBB\xBF"))
        data = data.subspan(3);
    const Status checked =
        format == Format::binary ? checkBinary(data, limits) : checkXML(textOf(data), limits);
    if (!checked)
        return checked.error();

    plist_t root = nullptr;
    const auto* text = reinterpret_cast<const char*>(data.data());
    const auto size = static_cast<std::uint32_t>(data.size());
    if (format == Format::binary) {
        plist_from_bin(text, size, &root);
    } else {
        const CLocale locale;
        plist_from_xml(text, size, &root);
    }
    const Node node(root);
    auto value = node ? valueOf(node.get(), format) : std::nullopt;
    if (!value)
        return Error{"The property list is damaged"};
    return std::move(*value);
}

Result<Bytes> serialize(const Value& value, Format format, const Limits& limits) {
    std::size_t values = limits.values;
    if (!fits(value, limits.depth, values))
        return Error{"The property list is nested too deeply or too large"};
    Result<Bytes> list = format == Format::xml ? toXML(value) : toBinary(value);
    if (list && list->size() > limits.bytes)
        return Error{"The property list is too large"};
    return list;
}

} // namespace tavrik::plist
