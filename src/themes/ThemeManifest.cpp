#include "themes/ThemeManifest.h"

#include "platform/PropertyList.h"

#include <openssl/evp.h>

#include <algorithm>

namespace tavrik {

namespace {

constexpr plist::Limits kLimits{.bytes = 8u << 20, .depth = 4, .values = 32'768};

} // namespace

Sha256 sha256(ByteView data) {
    Sha256 hash;
    EVP_Digest(data.data(), data.size(), hash.data(), nullptr, EVP_sha256(), nullptr);
    return hash;
}

Result<Bytes> encodeManifest(const ManifestEntries& entries) {
    plist::Dictionary list;
    for (const auto& [name, entry] : entries)
        list[name] = plist::Dictionary{{"sha256", Bytes(entry.hash.begin(), entry.hash.end())},
                                       {"size", static_cast<std::int64_t>(entry.size)}};
    return plist::serialize(
        plist::Dictionary{{"entries", std::move(list)}, {"formatVersion", kThemeFileVersion}},
        plist::Format::xml, kLimits);
}

Result<ManifestEntries> decodeManifest(ByteView manifest) {
    const Error damaged{"has a damaged manifest"};
    const auto root = plist::parse(manifest, kLimits);
    const auto* version = root ? root->find<std::int64_t>("formatVersion") : nullptr;
    if (!version || *version < 1)
        return damaged;
    if (*version > kThemeFileVersion)
        return Error{"has the format " + std::to_string(*version) +
                     " of a newer version of Tavrik. Update Tavrik to open it"};
    const auto* list = root->find<plist::Dictionary>("entries");
    if (!list)
        return damaged;
    ManifestEntries entries;
    for (const auto& [name, value] : *list) {
        const auto* size = value.find<std::int64_t>("size");
        const auto* hash = value.find<Bytes>("sha256");
        ManifestEntry& entry = entries[name];
        if (!size || *size < 0 || !hash || hash->size() != entry.hash.size())
            return damaged;
        entry.size = static_cast<std::size_t>(*size);
        std::ranges::copy(*hash, entry.hash.begin());
    }
    return entries;
}

} // namespace tavrik
