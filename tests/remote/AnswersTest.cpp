#include "Signing.h"
#include "remote/RemoteService.h"
#include "remote/SignedAnswer.h"
#include "remote/StrictJson.h"

#include <gtest/gtest.h>

#include <optional>

namespace tavrik {

namespace {

using test::payload;
using test::Signer;

const Signer kCurrent("current-9", 1);
const Signer kSpare("spare-9", 2);
const Signer kStranger("current-9", 3);
const std::vector<TrustedKey> kKeys{kCurrent.key(), kSpare.key()};
const Date kNow{800'000'000}; // 2026-05-09T06:13:20Z

std::optional<RemoteFailure> failureOf(const std::string& bytes, const SeenSerials& seen = {}) {
    const auto answer = trustedAnswer(bytesOf(bytes), RemoteKind::texts, kKeys, seen, kNow);
    return answer ? std::nullopt : std::optional(answer.problem().failure);
}

const std::string kTexts = payload("texts", 5, R"("texts":{},"links":{})");

} // namespace

TEST(SignedAnswer, IsTakenFromBothKeysAndFromNoOther) {
    EXPECT_EQ(failureOf(kCurrent.sign(kTexts)), std::nullopt);
    EXPECT_EQ(failureOf(kSpare.sign(kTexts)), std::nullopt);
    const std::string good = kCurrent.sign(kTexts);
    const std::string line = good.substr(0, good.find('\n'));
    const std::string refused[] = {"",
                                   kTexts,
                                   "\n" + kTexts,
                                   line,
                                   line.substr(0, line.size() - 4) + "\n" + kTexts,
                                   "tavrik-signed-2" + good.substr(15),
                                   "tavrik-signed-1 current-9\n" + kTexts,
                                   std::string(300, ' ') + good,
                                   good + "\n",
                                   kStranger.sign(kTexts),
                                   Signer("other", 1).sign(kTexts),
                                   "tavrik-signed-1 spare-9" + good.substr(25)};
    for (const std::string& bytes : refused)
        EXPECT_EQ(failureOf(bytes), RemoteFailure::notTrusted) << bytes;
}

TEST(SignedAnswer, IsRefusedWhateverSingleBitIsTurned) {
    const std::string good = kCurrent.sign(kTexts);
    for (std::size_t at = 0; at < good.size(); ++at) {
        for (const char bit : {'\x01', '\x20'}) {
            std::string bytes = good;
            bytes[at] = static_cast<char>(bytes[at] ^ bit);
            EXPECT_FALSE(verifiedAnswer(bytesOf(bytes), kKeys)) << at;
        }
    }
}

TEST(TrustedAnswer, IsForItsServiceInForceAndNotOlderThanWhatWasSeen) {
    const std::string rest = R"("texts":{})";
    const std::pair<std::string, std::optional<RemoteFailure>> cases[] = {
        {payload("texts", 5, rest), std::nullopt},
        {payload("texts", 4, rest), RemoteFailure::notTrusted},
        {payload("updates", 5, rest), RemoteFailure::notTrusted},
        {payload("texts", 0, rest), RemoteFailure::notUnderstood},
        {payload("texts", 5, rest, "2026-05-10T06:13:20Z"), std::nullopt},
        {payload("texts", 5, rest, "2026-05-10T06:13:21Z"), RemoteFailure::expired},
        {payload("texts", 5, rest, "2026-05-01T00:00:00Z", "2026-05-09T06:13:21Z"), std::nullopt},
        {payload("texts", 5, rest, "2026-05-01T00:00:00Z", "2026-05-09T06:13:20Z"), RemoteFailure::expired},
        {payload("texts", 5, rest, "2026-07-01T00:00:00Z", "2026-06-01T00:00:00Z"),
         RemoteFailure::notUnderstood},
        {payload("texts", 5, rest, "2026-05-01"), RemoteFailure::notUnderstood},
        {payload("texts", 5, rest, "2026-02-30T00:00:00Z"), RemoteFailure::notUnderstood},
        {payload("texts", 5, R"("serial":6)"), RemoteFailure::notUnderstood},
        {"[]", RemoteFailure::notUnderstood}};
    for (const auto& [text, failure] : cases)
        EXPECT_EQ(failureOf(kCurrent.sign(text), {{"current-9", 5}}), failure) << text;
    EXPECT_EQ(failureOf(kSpare.sign(payload("texts", 1, rest)), {{"current-9", 5}}), std::nullopt)
        << "the spare key counts by itself";
}

TEST(StrictJson, TakesOneObjectThatSaysEverythingOnce) {
    const std::string deepest = R"({"a":[[[[[[[":,{["]]]]]]]})";
    const std::pair<std::string, bool> cases[] = {{R"({})", true},
                                                  {R"({"a":{"b":1,"c":"x:y\":{"},"b":[{"b":2}]})", true},
                                                  {deepest, true},
                                                  {"{\"a\":[" + deepest + "]}", false},
                                                  {R"({"a":1,"a":2})", false},
                                                  {R"({"a":1,"\u0061":2})", false},
                                                  {R"({"a":1} {})", false},
                                                  {R"({"a":NaN})", false},
                                                  {R"({"a":1e400})", false},
                                                  {"{\"a\":\"\xFF\"}", false},
                                                  {"", false},
                                                  {std::string(100'000, '['), false}};
    for (const auto& [text, isTaken] : cases)
        EXPECT_EQ(json::object(bytesOf(text)).has_value(), isTaken) << text.substr(0, 100);
}

TEST(StrictJson, TakesWholeNumbersThatADoubleHoldsExactly) {
    const auto object =
        json::object(bytesOf(R"({"a":9007199254740991,"b":9007199254740992,"c":-1,"d":1.5,"e":"1","g":true})"));
    ASSERT_TRUE(object);
    EXPECT_EQ(json::number(*object, "a"), 9007199254740991u);
    for (const char* const key : {"b", "c", "d", "e", "g", "h"})
        EXPECT_EQ(json::number(*object, key), std::nullopt) << key;
}

} // namespace tavrik
