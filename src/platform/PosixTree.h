#pragma once

#include <string>
#include <system_error>

/// Whole trees of the host's files. No link is followed, neither at the top nor on the way down, even when
/// another program puts one in the place of a folder meanwhile.
namespace tavrik {

/// Removes a file, a link itself, or a folder with everything in it. Stops at the first failure. `folder` is an
/// open folder's number, or AT_FDCWD for a whole path.
[[nodiscard]] std::error_code removeTree(int folder, const std::string& name);

/// Copies a file, a link or a folder with everything in it; a failure leaves what was copied so far. Plain
/// files keep their modification date and the owner's right to execute, and are flushed.
[[nodiscard]] std::error_code copyTree(const std::string& from, const std::string& to);

} // namespace tavrik
