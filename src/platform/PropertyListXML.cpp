#include "platform/PropertyListXML.h"

#include "platform/Utf8.h"

#include <QByteArray>
#include <QLocale>

#include <algorithm>
#include <cmath>
#include <variant>

namespace tavrik::plist {

namespace {

constexpr std::string_view kHeader = "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
                                     "<!DOCTYPE plist PUBLIC \"-//Apple//DTD PLIST 1.0//EN\" "
                                     "\"http://www.apple.com/DTDs/PropertyList-1.0.dtd\">\n"
                                     "<plist version=\"1.0\">\n";

/// Writes one value after the other; each says whether XML can hold it.
class Writer {
public:
    bool write(const Value& value) {
        return std::visit([this](const auto& content) { return writeContent(content); }, value.content());
    }

    std::string text = std::string(kHeader);

private:
    bool writeContent(const Dictionary& dictionary) {
        if (dictionary.empty())
            return line("<dict/>");
        line("<dict>");
        ++m_indent;
        for (const auto& [key, value] : dictionary) {
            if (!writeText("key", key) || !write(value))
                return false;
        }
        --m_indent;
        return line("</dict>");
    }

    bool writeContent(const Array& array) {
        if (array.empty())
            return line("<array/>");
        line("<array>");
        ++m_indent;
        for (const Value& value : array) {
            if (!write(value))
                return false;
        }
        --m_indent;
        return line("</array>");
    }

    bool writeContent(const std::string& string) { return writeText("string", string); }

    bool writeContent(const Bytes& bytes) {
        constexpr std::size_t lineLength = 68;
        const QByteArray encoded = QByteArray::fromRawData(reinterpret_cast<const char*>(bytes.data()),
                                                           static_cast<qsizetype>(bytes.size()))
                                       .toBase64();
        std::string_view rest(encoded.constData(), static_cast<std::size_t>(encoded.size()));
        line("<data>");
        for (; !rest.empty(); rest.remove_prefix(std::min(lineLength, rest.size())))
            line(rest.substr(0, lineLength));
        return line("</data>");
    }

    bool writeContent(Date date) {
        constexpr double year1 = -63113904000.0;     // 0001-01-01
        constexpr double year10000 = 252423993600.0; // 10000-01-01
        return date.sinceReference >= year1 && date.sinceReference < year10000 &&
               element("date", isoText(date));
    }

    bool writeContent(bool flag) { return line(flag ? "<true/>" : "<false/>"); }

    bool writeContent(std::int64_t number) { return element("integer", std::to_string(number)); }

    bool writeContent(std::uint64_t number) { return element("integer", std::to_string(number)); }

    bool writeContent(double number) {
        if (std::isnan(number))
            return element("real", "nan");
        if (std::isinf(number))
            return element("real", number > 0 ? "+infinity" : "-infinity");
        if (number == 0)
            return element("real", std::signbit(number) ? "-0" : "0");
        // The shortest digits that read back as the same number, whatever the process's locale.
        return element("real", QByteArray::number(number, 'g', QLocale::FloatingPointShortest).toStdString());
    }

    bool writeContent(UID uid) {
        return uid.number <= 0xFFFF'FFFF && write(Dictionary{{"CF$UID", Value(uid.number)}});
    }

    bool writeText(std::string_view tag, std::string_view content) {
        std::string escaped;
        escaped.reserve(content.size());
        while (true) {
            const auto special = std::ranges::find_if(content, [](char byte) {
                return static_cast<signed char>(byte) < 0x20 || byte == '&' || byte == '<' ||
                       byte == '>'; // negative outside ASCII
            });
            const auto plain = static_cast<std::size_t>(special - content.begin());
            escaped += content.substr(0, plain);
            content.remove_prefix(plain);
            if (content.empty())
                return element(tag, escaped);
            const std::string_view before = content;
            const auto point = takeCodePoint(content);
            if (!point || (*point < 0x20 && *point != '\t' && *point != '\n' && *point != '\r') ||
                *point == 0xFFFE || *point == 0xFFFF)
                return false;
            switch (*point) {
            case U'&':
                escaped += "&amp;";
                break;
            case U'<':
                escaped += "&lt;";
                break;
            case U'>':
                escaped += "&gt;";
                break;
            case U'\r': // as itself it would be read as a line feed
                escaped += "&#13;";
                break;
            default:
                escaped += before.substr(0, before.size() - content.size());
            }
        }
    }

    bool element(std::string_view tag, std::string_view content) {
        text.append(m_indent, '\t');
        text.append("<").append(tag).append(">").append(content).append("</").append(tag).append(">\n");
        return true;
    }

    bool line(std::string_view content) {
        text.append(m_indent, '\t');
        text.append(content).append("\n");
        return true;
    }

    std::size_t m_indent = 0;
};

} // namespace

Result<Bytes> toXML(const Value& value) {
    Writer writer;
    if (!writer.write(value))
        return Error{
            "The property list holds what XML cannot: control characters, damaged text or a date far off"};
    writer.text += "</plist>\n";
    const ByteView bytes = bytesOf(writer.text);
    return Bytes(bytes.begin(), bytes.end());
}

} // namespace tavrik::plist
