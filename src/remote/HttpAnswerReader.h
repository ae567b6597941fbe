#pragma once

#include "platform/Bytes.h"
#include "remote/HttpFetch.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace tavrik {

/// Whether it is a validator as a server may send it and a request may repeat it: a quoted text of visible
/// ASCII characters, perhaps after "W/", at most 200 long.
bool isEntityTag(std::string_view text);

/// Reads the answer to a GET request out of the bytes as they come: HTTP/1.1, a body with a length or in
/// chunks, and nothing that would have to be unpacked. Of an answer other than 200 and 304 nothing but the head
/// is read. Pure.
class HttpAnswerReader {
public:
    explicit HttpAnswerReader(std::size_t sizeLimit);

    enum class State { incomplete, complete, failed };

    /// Takes the next bytes. Those behind a complete answer are ignored.
    State take(ByteView bytes);

    /// Only when complete.
    HttpAnswer& answer() { return m_answer; }

    /// Only when failed.
    const RemoteProblem& problem() const { return m_problem; }

private:
    enum class Part { head, body, chunkSize, chunk, chunkEnd, trailer, done, failed };

    bool step();
    bool readHead(std::string_view head);
    bool readField(std::string_view line);
    bool decideOnBody();
    bool readChunkSize(std::string_view line);
    std::optional<std::string_view> takeLine(std::size_t longest);
    bool takeBody(Part next);
    bool fail(RemoteFailure failure, std::string detail);

    std::size_t m_sizeLimit;
    Bytes m_bytes;             ///< all so far
    std::size_t m_at = 0;      ///< what lies before has been read
    std::size_t m_seen = 0;    ///< up to where the end of a head or of a line has been looked for
    std::size_t m_missing = 0; ///< bytes of the body, or of the chunk
    Part m_part = Part::head;
    bool m_isChunked = false;
    std::optional<std::size_t> m_length;
    HttpAnswer m_answer;
    RemoteProblem m_problem;
};

} // namespace tavrik
