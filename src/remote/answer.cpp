#include "platform/Clock.h"
#include "platform/HostFile.h"
#include "remote/InterfaceTexts.h"
#include "remote/RemoteService.h"
#include "remote/UpdateFeed.h"

#include <QByteArray>
#include <QJsonArray>
#include <QJsonObject>

#include <algorithm>
#include <cstdio>
#include <string>

namespace {

using namespace tavrik;

constexpr std::size_t kHeaders = 8 << 10; ///< bytes that a server may send before the answer itself

int refuse(const std::string& sentence) {
    std::fprintf(stderr, "%s\n", sentence.c_str());
    return 1;
}

/// What the program would pass over or keep built in, a sentence each.
std::string faultsOfTexts(const QJsonObject& payload) {
    std::string faults;
    for (const char* const part : {"texts", "links"}) {
        if (!payload[QLatin1String(part)].isObject())
            faults += std::string("\"") + part + "\" is missing; it may be {}.\n";
    }
    const auto fault = [&](const QString& key, const char* why) {
        faults += "\"" + key.toStdString() + "\" " + why + "\n";
    };
    const QJsonObject texts = payload[QStringLiteral("texts")].toObject();
    for (auto each = texts.begin(); each != texts.end(); ++each) {
        const auto entry =
            std::ranges::find(replaceableTexts(), each.key().toStdString(), &ReplaceableText::key);
        if (entry == replaceableTexts().end())
            fault(each.key(), "is no text that may be replaced.");
        else if (!each->isString() || !mayReplace(*entry, each->toString().toStdString()))
            fault(each.key(), "is too long, no plain text, or has other placeholders than the built-in text.");
    }
    const QJsonObject links = payload[QStringLiteral("links")].toObject();
    for (auto each = links.begin(); each != links.end(); ++each) {
        if (!std::ranges::count(replaceableLinks(), each.key().toStdString(), &ReplaceableLink::key))
            fault(each.key(), "is no link that may be replaced.");
        else if (!each->isString() || !isAllowedLink(each->toString().toStdString()))
            fault(each.key(), "leads nowhere that is allowed: https, and a host of the list.");
    }
    for (const QString& key : payload.keys()) {
        if (!QStringList{QStringLiteral("kind"), QStringLiteral("serial"), QStringLiteral("issued"),
                         QStringLiteral("expires"), QStringLiteral("texts"), QStringLiteral("links")}
                 .contains(key))
            fault(key, "is nothing that the program knows.");
    }
    return faults;
}

/// Which release the program cannot take.
std::string faultsOfFeed(const QJsonObject& payload) {
    if (updateFeed(payload))
        return {};
    const QString name = QStringLiteral("releases");
    const QJsonArray releases = payload[name].toArray();
    for (qsizetype i = 0; i < releases.size(); ++i) {
        if (!updateFeed(QJsonObject{{name, QJsonArray{releases[i]}}}))
            return "Release " + std::to_string(i + 1) +
                   " is not as it should be: its version, its systems, its notes, its size or its link.\n";
    }
    return "\"releases\" is no list of releases, or too long a one.\n";
}

int read(RemoteKind kind, const char* file, const char* keyID, const char* publicKey) {
    const auto bytes = readHostFile(HostPath(file));
    if (!bytes)
        return refuse(bytes.error().description);
    if (bytes->size() + kHeaders > HttpOptions().sizeLimit)
        return refuse(std::string(file) + " is larger than the program takes.");
    const QByteArray digits = QByteArray::fromHex(publicKey);
    TrustedKey key{keyID, {}};
    if (static_cast<std::size_t>(digits.size()) != key.bytes.size())
        return refuse("The public key is not 32 bytes long.");
    std::copy(digits.begin(), digits.end(), key.bytes.begin());

    const auto answer = trustedAnswer(*bytes, kind, {key}, {}, SystemClock().now());
    if (!answer)
        return refuse(std::string(file) + " is not used: " + answer.problem().detail + ".");
    const std::string faults =
        kind == RemoteKind::texts ? faultsOfTexts(answer->payload) : faultsOfFeed(answer->payload);
    if (!faults.empty())
        return refuse(faults);
    std::printf("Good: %s, serial %llu, until %s, signed with %s.\n", std::string(nameOf(kind)).c_str(),
                static_cast<unsigned long long>(answer->header.serial), isoText(answer->header.expires).c_str(),
                keyID);
    return 0;
}

} // namespace

/// Reads a signed answer as the program does, but more strictly: what the program would pass over is a fault
/// here. For `tools/publish`.
int main(int argc, char** argv) {
    const std::string command = argc > 1 ? argv[1] : "";
    if (command == "list" && argc == 2) {
        std::printf("%s\n", allowListJson().c_str());
        return 0;
    }
    for (const RemoteKind kind : kRemoteKinds) {
        if (command == nameOf(kind) && argc == 5)
            return read(kind, argv[2], argv[3], argv[4]);
    }
    std::fprintf(stderr, "tavrik-answer list, or tavrik-answer texts|updates FILE KEY-ID PUBLIC-KEY\n");
    return 2;
}
