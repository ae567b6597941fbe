#pragma once

#include "platform/Bytes.h"
#include "remote/RemoteProblem.h"
#include "remote/TrustedKeys.h"

#include <span>
#include <string>

namespace tavrik {

/// What an answer says once its signature was found good.
struct SignedAnswer {
    std::string keyID;
    ByteView payload; ///< of the bytes that were verified
};

/// An answer is one line, `tavrik-signed-1 <key id> <signature in base64>`, ended by a line feed, and then the
/// payload to the last byte. The signature is Ed25519 over the exact bytes of the payload. Nothing of the
/// payload is looked at before. Any thread; pure.
RemoteResult<SignedAnswer> verifiedAnswer(ByteView bytes, std::span<const TrustedKey> keys);

} // namespace tavrik
