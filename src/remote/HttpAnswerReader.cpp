#include "remote/HttpAnswerReader.h"

#include <algorithm>
#include <cstdint>

namespace tavrik {

namespace {

constexpr std::size_t kLongestHead = 16u << 10; ///< bytes
constexpr std::size_t kLongestLine = 256;       ///< bytes, of a chunk's size and of a trailer
constexpr std::size_t kLongestTag = 200;
constexpr int kOK = 200;
constexpr int kNotModified = 304;

char lower(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

bool isSame(std::string_view one, std::string_view other) {
    return std::ranges::equal(one, other, {}, lower, lower);
}

std::string_view trimmed(std::string_view text) {
    const std::size_t begin = std::min(text.find_first_not_of(" \t"), text.size());
    text.remove_prefix(begin);
    const std::size_t end = text.find_last_not_of(" \t");
    return end == text.npos ? std::string_view() : text.substr(0, end + 1);
}

/// Digits alone, at most fifteen of them, which a size holds to any of the bases here.
std::optional<std::size_t> number(std::string_view text, std::size_t base) {
    constexpr std::size_t mostDigits = 15;
    constexpr std::string_view digits = "0123456789abcdef";
    if (text.empty() || text.size() > mostDigits)
        return std::nullopt;
    std::size_t number = 0;
    for (const char letter : text) {
        const std::size_t digit = digits.find(lower(letter));
        if (digit >= base)
            return std::nullopt;
        number = number * base + digit;
    }
    return number;
}

} // namespace

bool isEntityTag(std::string_view text) {
    if (text.size() > kLongestTag)
        return false;
    if (text.starts_with("W/"))
        text.remove_prefix(2);
    return text.size() >= 2 && text.front() == '"' && text.back() == '"' &&
           std::ranges::all_of(text.substr(1, text.size() - 2),
                               [](char letter) { return letter > ' ' && letter < 0x7F && letter != '"'; });
}

HttpAnswerReader::HttpAnswerReader(std::size_t sizeLimit) : m_sizeLimit(sizeLimit) {}

HttpAnswerReader::State HttpAnswerReader::take(ByteView bytes) {
    if (m_part != Part::done && m_part != Part::failed) {
        const std::size_t taken = std::min(bytes.size(), m_sizeLimit - m_bytes.size());
        m_bytes.insert(m_bytes.end(), bytes.begin(), bytes.begin() + static_cast<std::ptrdiff_t>(taken));
        while (m_part != Part::done && m_part != Part::failed && step()) {
        }
        if (taken < bytes.size() && m_part != Part::done && m_part != Part::failed)
            fail(RemoteFailure::tooLarge, "the answer is too large");
    }
    return m_part == Part::done ? State::complete : m_part == Part::failed ? State::failed : State::incomplete;
}

/// Reads one piece; false when it is not there as a whole.
bool HttpAnswerReader::step() {
    switch (m_part) {
    case Part::head: {
        const std::string_view rest = textOf(m_bytes).substr(m_at);
        const std::size_t end = rest.find("\r\n\r\n", m_seen);
        if (std::min(end, rest.size()) > kLongestHead)
            return fail(RemoteFailure::tooLarge, "the head of the answer is too large");
        m_seen = rest.size() < 3 ? 0 : rest.size() - 3;
        if (end == rest.npos)
            return false;
        m_at += end + 4;
        m_seen = 0;
        return readHead(rest.substr(0, end));
    }
    case Part::body:
        return takeBody(Part::done);
    case Part::chunk:
        return takeBody(Part::chunkEnd);
    case Part::chunkSize: {
        const auto line = takeLine(kLongestLine);
        return line && readChunkSize(*line);
    }
    case Part::chunkEnd: {
        const auto line = takeLine(0);
        if (line)
            m_part = Part::chunkSize;
        return line.has_value();
    }
    case Part::trailer: {
        const auto line = takeLine(kLongestLine);
        if (line && line->empty())
            m_part = Part::done;
        return line.has_value();
    }
    case Part::done:
    case Part::failed:
        break;
    }
    return false;
}

bool HttpAnswerReader::readHead(std::string_view head) {
    const std::size_t end = std::min(head.find("\r\n"), head.size());
    const std::string_view status = head.substr(0, end);
    const bool isHttp = (status.starts_with("HTTP/1.1 ") || status.starts_with("HTTP/1.0 ")) &&
                        (status.size() == 12 || (status.size() > 12 && status[12] == ' '));
    const auto code = isHttp ? number(status.substr(9, 3), 10) : std::nullopt;
    if (!code)
        return fail(RemoteFailure::refused, "this is no answer in HTTP");
    if (*code / 100 == 1 && *code != 101)
        return true; // an announcement; the answer itself follows
    if (*code != kOK && *code != kNotModified)
        return fail(RemoteFailure::refused, "the server answers with status " + std::to_string(*code));
    m_answer.status = static_cast<int>(*code);
    for (head.remove_prefix(end); !head.empty();) {
        head.remove_prefix(2);
        const std::size_t length = std::min(head.find("\r\n"), head.size());
        if (!readField(head.substr(0, length)))
            return fail(RemoteFailure::refused, "the head of the answer is not as it should be");
        head.remove_prefix(length);
    }
    return decideOnBody();
}

/// False for what is malformed, and for what would have to be unpacked.
bool HttpAnswerReader::readField(std::string_view line) {
    const std::size_t colon = line.find(':');
    const std::string_view name = line.substr(0, colon);
    if (colon == line.npos || name.empty() || name.find_first_of(" \t\r\n") != name.npos)
        return false;
    const std::string_view value = trimmed(line.substr(colon + 1));
    if (isSame(name, "Content-Encoding"))
        return isSame(value, "identity");
    if (isSame(name, "Transfer-Encoding")) {
        const bool isFirst = !m_isChunked;
        m_isChunked = true;
        return isFirst && isSame(value, "chunked");
    }
    if (isSame(name, "Content-Length")) {
        const auto length = number(value, 10);
        const bool isFirst = !m_length;
        m_length = length;
        return length && isFirst;
    }
    if (isSame(name, "ETag") && isEntityTag(value))
        m_answer.etag = value;
    return true;
}

bool HttpAnswerReader::decideOnBody() {
    if (m_answer.status == kNotModified) {
        m_part = Part::done;
        return true;
    }
    if (m_isChunked == m_length.has_value())
        return fail(RemoteFailure::refused, "the answer does not say how long it is, or says it twice");
    m_missing = m_length.value_or(0);
    if (m_missing > m_sizeLimit)
        return fail(RemoteFailure::tooLarge, "the answer is too large");
    m_part = m_isChunked ? Part::chunkSize : Part::body;
    return true;
}

bool HttpAnswerReader::readChunkSize(std::string_view line) {
    const auto size = number(trimmed(line.substr(0, line.find(';'))), 16);
    if (!size || *size > m_sizeLimit)
        return fail(size ? RemoteFailure::tooLarge : RemoteFailure::refused,
                    "a chunk of the answer is not good");
    m_missing = *size;
    m_part = *size == 0 ? Part::trailer : Part::chunk;
    return true;
}

/// The next line, without its end, once it is there. Fails when it is longer than it may be.
std::optional<std::string_view> HttpAnswerReader::takeLine(std::size_t longest) {
    const std::string_view rest = textOf(m_bytes).substr(m_at);
    const std::size_t end = rest.substr(0, longest + 2).find("\r\n");
    if (end != rest.npos) {
        m_at += end + 2;
        return rest.substr(0, end);
    }
    if (rest.size() >= longest + 2)
        fail(RemoteFailure::refused, "a chunk of the answer is not good");
    return std::nullopt;
}

/// Moves what is there of the body over to the answer.
bool HttpAnswerReader::takeBody(Part next) {
    const std::size_t count = std::min(m_missing, m_bytes.size() - m_at);
    const auto begin = m_bytes.begin() + static_cast<std::ptrdiff_t>(m_at);
    m_answer.body.insert(m_answer.body.end(), begin, begin + static_cast<std::ptrdiff_t>(count));
    m_at += count;
    m_missing -= count;
    if (m_missing > 0)
        return false;
    m_part = next;
    return true;
}

bool HttpAnswerReader::fail(RemoteFailure failure, std::string detail) {
    m_part = Part::failed;
    m_problem = {failure, std::move(detail)};
    return false;
}

} // namespace tavrik
