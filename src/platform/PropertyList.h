#pragma once

#include "platform/Bytes.h"
#include "platform/Date.h"
#include "platform/Result.h"

#include <cstddef>
#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

/// Property lists, XML and binary: one closed value type and its codec. Pure; any thread.
namespace tavrik::plist {

class Value;

using Array = std::vector<Value>;
using Dictionary = std::map<std::string, Value, std::less<>>;

struct UID {
    std::uint64_t number = 0;

    bool operator==(const UID&) const = default;
};

/// One value. Integers are signed; `std::uint64_t` appears only for what does not fit (above 2^63 - 1), so that
/// it is written back as it was read. Equality is by type and content.
class Value {
public:
    using Content = std::variant<Dictionary, Array, std::string, Bytes, Date, bool, std::int64_t, std::uint64_t,
                                 double, UID>;

    Value(); ///< an empty dictionary
    Value(const Value&);
    Value(Value&&) noexcept;
    Value& operator=(const Value&);
    Value& operator=(Value&&) noexcept;
    ~Value();

    Value(Dictionary value) : m_content(std::move(value)) {}

    Value(Array value) : m_content(std::move(value)) {}

    Value(std::string value) : m_content(std::move(value)) {}

    Value(std::string_view value) : m_content(std::string(value)) {}

    Value(const char* value) : m_content(std::string(value)) {}

    Value(Bytes value) : m_content(std::move(value)) {}

    Value(Date value) : m_content(value) {}

    Value(bool value) : m_content(value) {}

    Value(int value) : m_content(std::int64_t{value}) {}

    Value(std::int64_t value) : m_content(value) {}

    Value(std::uint64_t value);

    Value(double value) : m_content(value) {}

    Value(UID value) : m_content(value) {}

    Value(const void*) = delete;

    /// The content when it is of that type, else null: `if (const auto* text = value.as<std::string>())`.
    template<typename T>
    const T* as() const {
        return std::get_if<T>(&m_content);
    }

    template<typename T>
    T* as() {
        return std::get_if<T>(&m_content);
    }

    /// The entry of a dictionary; null when there is none or the value is no dictionary.
    const Value* find(std::string_view key) const;
    Value* find(std::string_view key);

    /// The entry of a dictionary when it is there and of that type, else null.
    template<typename T>
    const T* find(std::string_view key) const {
        const Value* entry = find(key);
        return entry ? entry->as<T>() : nullptr;
    }

    const Content& content() const { return m_content; }

    bool operator==(const Value&) const = default;

private:
    Content m_content;
};

enum class Format { xml, binary };

/// What a reader accepts. Depth counts containers within containers, the root being 1. Values count every node,
/// keys aside, and a node that a binary list refers to twice counts twice, its bytes too, so that a small file
/// cannot unfold into a huge one.
struct Limits {
    std::size_t bytes = 256u << 20;
    std::size_t depth = 128;
    std::size_t values = 4'000'000;
};

/// Reads XML or binary, told apart by content; the old ASCII form is an error. Damaged, cut short, too deep or
/// too large input is an error, never a crash. So is what would not survive being written back: text that holds
/// NUL or is not Unicode, integers that fit neither 64-bit type, sets and nulls. Numbers and dates that are
/// misspelt in XML are read as far as they go.
Result<Value> parse(ByteView data, const Limits& limits = {});

/// Equal values give equal bytes. Binary keeps everything. XML keeps every bit of a real and carriage returns,
/// cuts dates to whole seconds, and gives a UID back only as such when it is read here or by the Mac, where the
/// dictionary of one integer "CF$UID" means one. Fails on what the format cannot hold: text that is not UTF-8
/// or holds NUL, control characters and years outside 1 to 9999 in XML, UIDs above 32 bits, and depth, values
/// or bytes above the limits.
Result<Bytes> serialize(const Value& value, Format format, const Limits& limits = {});

} // namespace tavrik::plist
