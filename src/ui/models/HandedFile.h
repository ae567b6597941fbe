#pragma once

#include "platform/Bytes.h"
#include "platform/Result.h"

#include <QString>
#include <QUrl>

namespace tavrik {

/// Files of this computer that a person hands over: dropped, pasted, or picked in a dialog.

/// As the person knows it: "Ocean.png".
QString nameOfHandedFile(const QUrl& address);

/// Its content, at most 256 MB. The error is a sentence fit to be shown. Any thread but the main one: blocks on
/// a disk, which may be one of the network.
Result<Bytes> readHandedFile(const QUrl& address);

} // namespace tavrik
