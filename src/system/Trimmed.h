#pragma once

#include <string>

namespace tavrik {

/// Without white space and line breaks at both ends, as bundle identifiers are compared.
std::string trimmed(const std::string& text);

} // namespace tavrik
