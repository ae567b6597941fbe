#pragma once

#include "platform/Bytes.h"
#include "platform/Date.h"

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace tavrik {

/// The key that every copy of the program signs its requests with. It lies in the program for everybody to
/// read: it keeps strangers' crawlers off the service, names nobody and proves nothing.
struct RequestKey {
    std::string_view id;
    std::array<std::uint8_t, 32> bytes;
};

extern const RequestKey kRequestKey;

/// The last full hour, so that the clock of a machine does not tell it from others.
Date wholeHour(Date date);

/// "Fri, 20 Nov 2026 19:00:00 GMT".
std::string httpDate(Date date);

/// The text that is signed, a line each, the last one without a line break: method, path with its query, date,
/// and the SHA-256 of the body in lower-case hexadecimal digits.
std::string textToSign(std::string_view method, std::string_view path, std::string_view date, ByteView body);

/// The value of the header "Authorization": `Tavrik-HMAC-SHA256 key="<id>", signature="<base64>"`.
std::string authorization(const RequestKey& key, std::string_view text);

} // namespace tavrik
