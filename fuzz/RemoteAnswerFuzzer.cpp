#include "platform/Log.h"
#include "remote/AnswerHeader.h"
#include "remote/HttpAnswerReader.h"
#include "remote/InterfaceTexts.h"
#include "remote/SignedAnswer.h"
#include "remote/StrictJson.h"
#include "remote/UpdateFeed.h"

#include <algorithm>
#include <cstdlib>
#include <optional>
#include <string>

using namespace tavrik;

namespace {

constexpr std::size_t kLimit = 4096;

void require(bool holds) {
    if (!holds)
        std::abort();
}

struct Read {
    HttpAnswerReader::State state;
    std::string outcome;

    bool operator==(const Read&) const = default;
};

Read read(ByteView answer, std::size_t piece) {
    HttpAnswerReader reader(kLimit);
    auto state = HttpAnswerReader::State::incomplete;
    for (; !answer.empty(); answer = answer.subspan(std::min(piece, answer.size())))
        state = reader.take(answer.first(std::min(piece, answer.size())));
    if (state == HttpAnswerReader::State::failed)
        return {state, std::string(nameOf(reader.problem().failure))};
    return {state, state == HttpAnswerReader::State::complete ? std::string(textOf(reader.answer().body)) : ""};
}

/// However an answer is cut into pieces, it is read as the same.
void readAnswer(ByteView answer) {
    const Read whole = read(answer, kLimit * 2);
    require(whole == read(answer, 1) && whole == read(answer, 3));
    require(whole.outcome.size() <= kLimit);
}

/// Whoever has no key of ours is not believed.
void verify(ByteView bytes) {
    require(!verifiedAnswer(bytes, trustedKeys()));
}

/// Whatever a payload says, texts stay plain and links lead to allowed hosts.
void readPayload(ByteView bytes) {
    const auto payload = json::object(bytes);
    if (!payload)
        return;
    for (const RemoteKind kind : kRemoteKinds) {
        if (const auto header = answerHeader(*payload, kind, Date{800'000'000}))
            require(header->serial > 0 && header->expires > header->issued);
    }
    const InterfaceTexts texts(*payload);
    for (const ReplaceableText& entry : replaceableTexts())
        require(mayReplace(entry, texts.text(entry.text)));
    for (const ReplaceableLink& entry : replaceableLinks())
        require(isAllowedLink(texts.link(entry.link)));
    for (const Release& release : updateFeed(*payload).value_or(std::vector<Release>()))
        require(isAllowedLink(release.link) && programVersion(textOf(release.version)) == release.version);
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int*, char***) {
    setLogStream(nullptr);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    if (size == 0)
        return 0;
    const ByteView input(data + 1, size - 1);
    switch (data[0] % 3) {
    case 0:
        readAnswer(input);
        break;
    case 1:
        verify(input);
        break;
    default:
        readPayload(input);
    }
    return 0;
}
