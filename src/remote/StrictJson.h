#pragma once

#include "platform/Bytes.h"
#include "platform/Date.h"

#include <QJsonObject>

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

/// JSON without the leniency: for what decides whether something is trusted or shown. Pure; any thread.
namespace tavrik::json {

/// An object, at most `kDeepest` containers deep. Nothing for anything else: bytes that are not UTF-8,
/// something after the object, a key that occurs twice in one object, numbers that are none.
std::optional<QJsonObject> object(ByteView bytes);

inline constexpr int kDeepest = 8;

/// The entry when it is there and of that type.
std::optional<std::string> text(const QJsonObject& object, std::string_view key);

/// A whole number from 0 to 2^53 - 1.
std::optional<std::uint64_t> number(const QJsonObject& object, std::string_view key);

/// "2026-03-01T12:34:56Z", exactly in this form.
std::optional<Date> date(const QJsonObject& object, std::string_view key);

} // namespace tavrik::json
