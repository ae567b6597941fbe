#include "practice/tools/DefaultsText.h"

#include <QByteArray>

#include <algorithm>
#include <string_view>

namespace tavrik::practice {

namespace {

bool isBare(std::string_view text) {
    return !text.empty() && std::ranges::all_of(text, [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_' ||
               c == '/' || c == '.' || c == '$' || c == ':';
    });
}

std::string quoted(std::string_view text) {
    if (isBare(text))
        return std::string(text);
    std::string result = "\"";
    for (const char c : text) {
        if (c == '"' || c == '\\')
            result += '\\';
        if (c == '\n')
            result += "\\n";
        else
            result += c;
    }
    return result + '"';
}

/// The shortest text that reads back as the same number.
std::string shortRealText(double real) {
    const QByteArray text = QByteArray::number(real, 'g', 15);
    return text.toDouble() == real ? text.toStdString() : QByteArray::number(real, 'g', 17).toStdString();
}

std::string dataText(const Bytes& bytes) {
    return "{length = " + std::to_string(bytes.size()) + ", bytes = 0x" +
           QByteArray(reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size()))
               .toHex()
               .toStdString() +
           "}";
}

std::string dateText(Date date) {
    std::string text = isoText(date);
    std::ranges::replace(text, 'T', ' ');
    text.pop_back();
    return text + " +0000";
}

/// Within a container, where texts that are no single word stand in quotes.
class ContainerText {
public:
    explicit ContainerText(std::size_t depth) : m_depth(depth) {}

    std::string operator()(const plist::Dictionary& entries) const {
        std::string text = "{\n";
        for (const auto& [key, value] : entries)
            text +=
                inner() + quoted(key) + " = " + std::visit(ContainerText(m_depth + 1), value.content()) + ";\n";
        return text + outer() + "}";
    }

    std::string operator()(const plist::Array& values) const {
        std::string text = "(\n";
        for (std::size_t at = 0; at < values.size(); ++at)
            text += inner() + std::visit(ContainerText(m_depth + 1), values[at].content()) +
                    (at + 1 < values.size() ? ",\n" : "\n");
        return text + outer() + ")";
    }

    std::string operator()(const std::string& text) const { return quoted(text); }

    std::string operator()(const Bytes& bytes) const { return dataText(bytes); }

    std::string operator()(Date date) const { return quoted(dateText(date)); }

    std::string operator()(bool truth) const { return truth ? "1" : "0"; }

    std::string operator()(double real) const { return quoted(shortRealText(real)); }

    std::string operator()(std::int64_t number) const { return quoted(std::to_string(number)); }

    std::string operator()(std::uint64_t number) const { return std::to_string(number); }

    std::string operator()(plist::UID uid) const { return std::to_string(uid.number); }

private:
    std::string outer() const { return std::string(4 * m_depth, ' '); }

    std::string inner() const { return std::string(4 * (m_depth + 1), ' '); }

    std::size_t m_depth;
};

} // namespace

std::string defaultsText(const plist::Value& value) {
    if (const auto* text = value.as<std::string>())
        return *text;
    if (const auto* date = value.as<Date>())
        return dateText(*date);
    if (const auto* real = value.as<double>())
        return shortRealText(*real);
    if (const auto* number = value.as<std::int64_t>())
        return std::to_string(*number);
    return std::visit(ContainerText(0), value.content());
}

} // namespace tavrik::practice
