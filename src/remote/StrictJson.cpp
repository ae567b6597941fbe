#include "remote/StrictJson.h"

#include "platform/Utf8.h"

#include <QDateTime>
#include <QJsonArray>
#include <QJsonDocument>
#include <QTimeZone>

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace tavrik::json {

namespace {

constexpr double kLargestWhole = 9007199254740991; ///< 2^53 - 1, the last up to which a double tells all apart

struct Shape {
    int depth = 0;
    std::size_t members = 0;
};

/// What the text says of its own shape, before anything is made of it: how deep it is, and how many members its
/// objects have, which are as many as there are colons outside strings.
Shape shapeOf(std::string_view text) {
    Shape shape;
    int depth = 0;
    bool isString = false;
    for (std::size_t at = 0; at < text.size(); ++at) {
        const char letter = text[at];
        if (isString) {
            if (letter == '\\')
                ++at;
            else if (letter == '"')
                isString = false;
        } else if (letter == '"') {
            isString = true;
        } else if (letter == '{' || letter == '[') {
            shape.depth = std::max(shape.depth, ++depth);
        } else if (letter == '}' || letter == ']') {
            --depth;
        } else if (letter == ':') {
            ++shape.members;
        }
    }
    return shape;
}

/// The members that were kept. Of a key that occurred twice only one was.
std::size_t membersOf(const QJsonValue& value) {
    std::size_t count = 0;
    if (value.isArray()) {
        for (const QJsonValue entry : value.toArray())
            count += membersOf(entry);
    } else if (value.isObject()) {
        const QJsonObject object = value.toObject();
        for (const QJsonValue entry : object)
            count += 1 + membersOf(entry);
    }
    return count;
}

QJsonValue entry(const QJsonObject& object, std::string_view key) {
    return object.value(QLatin1String(key.data(), static_cast<qsizetype>(key.size())));
}

} // namespace

std::optional<QJsonObject> object(ByteView bytes) {
    const std::string_view text = textOf(bytes);
    const Shape shape = shapeOf(text);
    if (shape.depth > kDeepest || !isUtf8(text))
        return std::nullopt;
    const auto document =
        QJsonDocument::fromJson(QByteArray::fromRawData(text.data(), static_cast<qsizetype>(text.size())));
    if (!document.isObject() || membersOf(document.object()) != shape.members)
        return std::nullopt;
    return document.object();
}

std::optional<std::string> text(const QJsonObject& object, std::string_view key) {
    const QJsonValue value = entry(object, key);
    return value.isString() ? std::optional(value.toString().toStdString()) : std::nullopt;
}

std::optional<std::uint64_t> number(const QJsonObject& object, std::string_view key) {
    const QJsonValue value = entry(object, key);
    const double number = value.toDouble(-1);
    if (!value.isDouble() || !(number >= 0 && number <= kLargestWhole) || std::floor(number) != number)
        return std::nullopt;
    return static_cast<std::uint64_t>(number);
}

std::optional<Date> date(const QJsonObject& object, std::string_view key) {
    const auto words = text(object, key);
    if (!words)
        return std::nullopt;
    auto moment =
        QDateTime::fromString(QString::fromStdString(*words), QStringLiteral("yyyy-MM-dd'T'HH:mm:ss'Z'"));
    moment.setTimeSpec(Qt::UTC);
    if (!moment.isValid())
        return std::nullopt;
    const Date date = dateFromUnix(static_cast<double>(moment.toSecsSinceEpoch()));
    return isoText(date) == *words ? std::optional(date) : std::nullopt;
}

} // namespace tavrik::json
